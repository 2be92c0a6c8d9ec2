#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/DataConnection.h"
#include "reports/ReportDesign.h"

namespace lorvane {

/// A report at work: its design's texts are set, its tables are pointed at a data file, and it is
/// filled.
class Report {
 public:
  /// `design` outlives the report.
  explicit Report(const ReportDesign& design);

  /// Empties the document, so that nothing of an earlier filling is shown.
  void DiscardSavedData();
  /// Sets a named text object. Raises 3265 when the design has none of that name.
  void SetText(std::string_view name, const std::string& text);
  /// The company that the document is of.
  void SetAuthor(const std::string& author) { author_ = author; }

  [[nodiscard]] std::size_t TableCount() const { return tables_.size(); }
  /// Points a table, counted from 1, at a data file. Raises 9 when there is no such table.
  void SetLocation(std::size_t table, const std::string& dataFile);
  /// The password of that file: the session's, a line feed, and the file's.
  void SetPassword(std::size_t table, const std::string& passwords);

  /// Reads the tables and makes the document. `session` gives the engine. Raises what the engine
  /// raises.
  void Fill(const DataConnection& session, const DateTime& now);
  [[nodiscard]] const ReportDocument& Document() const { return document_; }

 private:
  struct Table {
    std::string location;
    std::string passwords;
  };

  [[nodiscard]] Table& TableAt(std::size_t table);
  [[nodiscard]] std::unique_ptr<DataConnection> OpenTables(const DataConnection& session) const;
  [[nodiscard]] const std::string& TextOfObject(std::string_view name) const;
  [[nodiscard]] ReportSection FillForm(const DesignForm& form) const;
  void AddHeadings();
  void AddNotes(const std::vector<std::string>& counts, const DateTime& now);

  const ReportDesign* design_;
  std::vector<ReportText> texts_;
  std::vector<Table> tables_;
  std::string author_;
  ReportDocument document_;
};

/// Points every table of the report at the session's data file.
void LocateTables(Report& report, const DataConnection& session);

}  // namespace lorvane
