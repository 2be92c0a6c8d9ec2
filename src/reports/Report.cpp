#include "reports/Report.h"

#include <algorithm>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "reports/ListFill.h"

namespace lorvane {

Report::Report(const ReportDesign& design) : design_(&design), tables_(design.tables.size()) {
  for (const DesignText& text : design.texts) {
    texts_.push_back({text.name, text.initial});
  }
}

void Report::DiscardSavedData() { document_ = {}; }

void Report::SetText(std::string_view name, const std::string& text) {
  const auto found = std::find_if(texts_.begin(), texts_.end(),
                                  [&](const ReportText& object) { return object.name == name; });
  if (found == texts_.end()) {
    throw RuntimeError(error_number::kItemNotFound);
  }
  found->text = text;
}

Report::Table& Report::TableAt(std::size_t table) {
  if (table == 0 || table > tables_.size()) {
    throw RuntimeError(error_number::kSubscriptOutOfRange);
  }
  return tables_[table - 1];
}

void Report::SetLocation(std::size_t table, const std::string& dataFile) {
  TableAt(table).location = dataFile;
}

void Report::SetPassword(std::size_t table, const std::string& passwords) {
  TableAt(table).passwords = passwords;
}

// The tables of a design lie in one file.
std::unique_ptr<DataConnection> Report::OpenTables(const DataConnection& session) const {
  std::unique_ptr<DataConnection> connection = session.MakeAnother();
  const Table& table = tables_.at(0);
  connection->SetProviderConst(session.ProviderConst());
  connection->DataSource = table.location;
  connection->Password = table.passwords.substr(table.passwords.find('\n') + 1);
  connection->ReadOnly = session.ReadOnly;
  connection->OpenOrRaise();
  return connection;
}

void Report::Fill(const DataConnection& session, const DateTime& now) {
  document_ = {};
  document_.title = design_->title;
  document_.author = author_;
  document_.orientation = design_->orientation;
  document_.texts = texts_;
  AddHeadings();
  const std::unique_ptr<DataConnection> connection = OpenTables(session);
  std::vector<std::string> counts;
  for (const auto& section : design_->sections) {
    if (const auto* list = std::get_if<DesignList>(&section)) {
      FilledList filled = FillList(*list, connection->Connection(), {now});
      if (!filled.count.empty()) {
        counts.push_back(filled.count);
      }
      document_.sections.push_back(std::move(filled.section));
    } else {
      document_.sections.push_back(FillForm(std::get<DesignForm>(section)));
    }
  }
  AddNotes(counts, now);
}

const std::string& Report::TextOfObject(std::string_view name) const {
  return std::find_if(texts_.begin(), texts_.end(),
                      [&](const ReportText& object) { return object.name == name; })
      ->text;
}

ReportSection Report::FillForm(const DesignForm& form) const {
  constexpr double kMarkWidth = 14;
  constexpr double kLabelWidth = 150;
  constexpr double kTextWidth = 376;
  ReportSection section;
  section.heading = form.heading;
  section.columns = {{"", ReportFormat::kText, kMarkWidth},
                     {"", ReportFormat::kText, kLabelWidth},
                     {"", ReportFormat::kText, kTextWidth}};
  for (const DesignField& field : form.fields) {
    const std::string mark = field.mark != nullptr ? TextOfObject(field.mark) : std::string();
    section.rows.push_back(
        {ReportRow::Kind::kDetail, {mark, std::string(field.label), TextOfObject(field.text)}, {}});
  }
  return section;
}

void Report::AddHeadings() {
  for (const DesignText& text : design_->texts) {
    const std::string& shown = TextOfObject(text.name);
    if (text.place != DesignText::Place::kElsewhere && !Trim(shown).empty()) {
      document_.headings.push_back(shown);
    }
  }
}

void Report::AddNotes(const std::vector<std::string>& counts, const DateTime& now) {
  std::vector<std::string>& notes = document_.notes;
  notes = design_->method;
  for (const DesignText& text : design_->texts) {
    const std::string& shown = TextOfObject(text.name);
    if (text.place == DesignText::Place::kStated && !Trim(shown).empty()) {
      notes.push_back(shown);
    }
  }
  if (!counts.empty()) {
    // Several lists of one report are made from the same rows.
    notes.push_back("Rows: " + counts.front() + ".");
  }
  notes.push_back("Printed: " + ShortDate(now));
}

void LocateTables(Report& report, const DataConnection& session) {
  for (std::size_t table = 1; table <= report.TableCount(); ++table) {
    report.SetLocation(table, session.DataSource);
    report.SetPassword(table, "\n" + session.Password);
  }
}

}  // namespace lorvane
