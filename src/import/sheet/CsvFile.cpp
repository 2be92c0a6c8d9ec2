#include "import/sheet/CsvFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <optional>
#include <orcus/csv_parser.hpp>
#include <type_traits>
#include <utility>

#include "basic/ReadFile.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

// Most telling first: a comma may be a decimal comma or part of a name.
constexpr std::array kSeparators{'\t', ';', ','};
// What the parser is given in place of the separator. The parser takes a tab behind a quoted cell
// for a blank and skips it, so a tab can't be the separator that it sees.
constexpr char kUnitSeparator = '\x1f';
constexpr std::size_t kSampledLines = 50;

[[noreturn]] void Refuse(const std::string& sentence) {
  throw RuntimeError(error_number::kPathFileAccess, sentence);
}

bool IsSeparator(char character) {
  return std::find(kSeparators.begin(), kSeparators.end(), character) != kSeparators.end();
}

// Hands every character outside quotes to `visit`, until that says false. A quote opens only where
// a cell begins; doubled quotes close and open again.
template <typename Visit>
void VisitPlain(std::string& text, CsvBlanks blanks, Visit visit) {
  bool quoted = false;
  bool mayOpen = true;
  for (char& character : text) {
    if (quoted) {
      quoted = character != '"';
      mayOpen = !quoted;
    } else if (character == '"' && mayOpen) {
      quoted = true;
    } else {
      mayOpen = character == '\n' || IsSeparator(character) ||
                (mayOpen && character == ' ' && blanks == CsvBlanks::kTrimmed);
      if (!visit(character)) {
        return;
      }
    }
  }
}

using Counts = std::array<std::size_t, kSeparators.size()>;

// How often each separator stands on each of the first lines that aren't empty.
std::vector<Counts> CountSeparators(std::string& text, CsvBlanks blanks) {
  std::vector<Counts> lines;
  Counts counts{};
  bool empty = true;
  VisitPlain(text, blanks, [&](char character) {
    if (character == '\n') {
      if (!empty) {
        lines.push_back(counts);
      }
      counts = {};
      empty = true;
      return lines.size() < kSampledLines;
    }
    empty = false;
    const auto* const found = std::find(kSeparators.begin(), kSeparators.end(), character);
    if (found != kSeparators.end()) {
      ++counts[static_cast<std::size_t>(found - kSeparators.begin())];
    }
    return true;
  });
  return lines;
}

// The separator that stands equally often on every line; else the one most used on the first.
char DetectSeparator(std::string& text, CsvBlanks blanks) {
  const std::vector<Counts> lines = CountSeparators(text, blanks);
  if (lines.empty()) {
    return ',';
  }
  const Counts& first = lines.front();
  for (std::size_t place = 0; place < kSeparators.size(); ++place) {
    if (first[place] > 0 && std::all_of(lines.begin(), lines.end(), [&](const Counts& counts) {
          return counts[place] == first[place];
        })) {
      return kSeparators[place];
    }
  }
  const auto most = std::max_element(first.begin(), first.end());
  return *most == 0 ? ',' : kSeparators[static_cast<std::size_t>(most - first.begin())];
}

// Line ends as the parser wants them, the last line ended too, and the separator exchanged.
std::string Prepare(std::string_view bytes, CsvBlanks blanks) {
  std::string text = Replace(Replace(ToUtf8(bytes), "\r\n", "\n"), "\r", "\n");
  std::replace(text.begin(), text.end(), kUnitSeparator, ' ');
  text += '\n';
  const char separator = DetectSeparator(text, blanks);
  VisitPlain(text, blanks, [separator](char& character) {
    if (character == separator) {
      character = kUnitSeparator;
    }
    return true;
  });
  return text;
}

// Collects what the parser reports, and counts lines, those inside quoted cells included.
class RowCollector : public orcus::csv_handler {
 public:
  RowCollector(std::string_view text, CsvBlanks blanks)
      : end_(text.data() + text.size()), blanks_(blanks) {}

  void begin_row() { row_ = {line_, ++number_, {}}; }
  void cell(std::string_view value, bool transient) {
    // An unclosed quote makes the parser report more than there is.
    if (!transient && !value.empty() && value.data() + value.size() > end_) {
      throw std::exception();
    }
    row_.cells.emplace_back(value);
  }
  void cell(const char* text, std::size_t length, bool transient) {
    cell(std::string_view(text, length), transient);
  }
  void end_row() {
    ++line_;
    for (const std::string& text : row_.cells) {
      line_ += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }
    if (!IsEmpty()) {
      rows_.push_back(std::move(row_));
    }
  }

  [[nodiscard]] std::size_t Line() const { return line_; }
  [[nodiscard]] std::vector<CsvRow> TakeRows() { return std::move(rows_); }

 private:
  [[nodiscard]] bool IsEmpty() const {
    if (row_.cells.size() != 1) {
      return row_.cells.empty();
    }
    const std::string& only = row_.cells.front();
    return (blanks_ == CsvBlanks::kKept ? only : Trim(only)).empty();
  }

  const char* end_;
  CsvBlanks blanks_;
  std::size_t line_ = 1;
  std::size_t number_ = 0;
  CsvRow row_;
  std::vector<CsvRow> rows_;
};

// Releases of the parser differ in how they take the text.
template <typename Handler>
void RunParser(std::string_view text, CsvBlanks blanks, Handler& handler) {
  using Parser = orcus::csv_parser<Handler>;
  orcus::csv::parser_config config;
  config.delimiters = kUnitSeparator;
  config.text_qualifier = '"';
  config.trim_cell_value = blanks == CsvBlanks::kTrimmed;
  if constexpr (std::is_constructible_v<Parser, std::string_view, Handler&,
                                        const orcus::csv::parser_config&>) {
    Parser(text, handler, config).parse();
  } else {
    Parser(text.data(), text.size(), handler, config).parse();
  }
}

}  // namespace

std::string_view CsvRow::Cell(std::size_t place) const {
  return place < cells.size() ? std::string_view(cells[place]) : std::string_view();
}

CsvFile CsvFile::Read(const std::string& path, CsvBlanks blanks) {
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) {
    throw RuntimeError(error_number::kFileNotFound, fmt::format("There is no file '{}'.", path));
  }
  const std::optional<std::string> bytes = ReadFile(path, kMaxBytes);
  if (!bytes) {
    Refuse(fmt::format("The file '{}' can't be read.", path));
  }
  if (bytes->size() > kMaxBytes) {
    Refuse(fmt::format("The file '{}' is larger than {} megabytes.", path, kMaxBytes >> 20U));
  }
  return Parse(*bytes, path, blanks);
}

CsvFile CsvFile::Parse(std::string_view bytes, const std::string& name, CsvBlanks blanks) {
  if (bytes.find('\0') != std::string_view::npos) {
    Refuse(fmt::format("'{}' is no CSV file. Please save the sheet as CSV, in UTF-8.", name));
  }
  const std::string text = Prepare(bytes, blanks);
  RowCollector collector(text, blanks);
  try {
    RunParser(text, blanks, collector);
  } catch (const std::exception&) {
    Refuse(fmt::format("{}, line {}: a quoted cell doesn't end where the next cell begins.",
                       GetNamePart(name), collector.Line()));
  }
  CsvFile file;
  file.name_ = GetNamePart(name);
  file.rows_ = collector.TakeRows();
  return file;
}

std::string CsvFile::PlaceOf(const CsvRow& row) const {
  return fmt::format("{}, line {}", name_, row.line);
}

}  // namespace lorvane
