#include "import/ImportPreview.h"

#include <fmt/format.h>

#include <optional>

#include "import/ImportReport.h"
#include "import/ImportRow.h"
#include "import/PeopleOnFile.h"
#include "import/sheet/Spreadsheet.h"

namespace lorvane {
namespace {

constexpr const char* kOnFile = "On file already";

std::string LossesOf(const std::vector<ImportCell>& cells, const ImportTarget& target) {
  std::string losses;
  for (std::size_t place = 0; place < cells.size(); ++place) {
    if (!cells[place].loss.empty()) {
      losses += fmt::format("{}{}: {}", losses.empty() ? "" : "; ", target.columns[place].Heading(),
                            cells[place].loss);
    }
  }
  return losses;
}

PreviewRow ShownRow(std::size_t row, const std::vector<ImportCell>& cells,
                    const ImportTarget& target, std::string note) {
  PreviewRow shown;
  shown.texts.push_back(std::to_string(row));
  for (std::size_t place = 0; place < target.columns.size(); ++place) {
    shown.texts.push_back(place < cells.size() ? cells[place].text : std::string());
  }
  shown.texts.push_back(std::move(note));
  return shown;
}

}  // namespace

ImportPreview PreviewImport(const DataConnection& session, const std::string& path,
                            int numberOfColumns, const ImportTarget& target,
                            bool skipPeopleOnFile) {
  const Spreadsheet sheet = ReadSpreadsheet(path);
  std::optional<PeopleOnFile> onFile;
  if (skipPeopleOnFile) {
    onFile.emplace(session.Connection(), target);
  }
  ImportPreview preview;
  std::size_t losing = 0;
  std::size_t known = 0;
  const std::size_t rows = CountImportRows(sheet);
  for (std::size_t row = 1; row <= rows; ++row) {
    const std::vector<ImportCell> cells = ReadImportRow(sheet, row, target, numberOfColumns);
    std::string note = LossesOf(cells, target);
    if (onFile && !cells.empty()) {
      if (onFile->Has(cells.front().text)) {
        ++known;
        note = kOnFile;
      }
      onFile->Add(cells.front().text);
    }
    losing += note.empty() || note == kOnFile ? 0U : 1U;
    if (preview.rows.size() < ImportPreview::kRows) {
      preview.rows.push_back(ShownRow(row, cells, target, std::move(note)));
    }
  }
  preview.summary = Counted(rows, "row.", "rows.");
  if (losing > 0) {
    preview.summary +=
        " " + Counted(losing, "row loses", "rows lose") + " something: see the notes.";
  }
  if (known > 0) {
    preview.summary += " " + Counted(known, "row is", "rows are") + " on file already.";
  }
  return preview;
}

}  // namespace lorvane
