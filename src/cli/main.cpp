#include <CLI/CLI.hpp>
#include <exception>
#include <functional>
#include <iostream>

#include "Version.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/Commands.h"
#include "cli/RunScript.h"
#include "shell/modLorvane.h"

namespace lorvane {
namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

/// The options of every command, with a place for the values that CLI11 reads.
class CommandLine {
 public:
  CommandLine() {
    app_.set_version_flag("--version", kVersionText);
    app_.require_subcommand(1);
    AddNew();
    AddShow();
    AddList();
    AddCheck();
    AddSql();
    AddImport();
    AddPay();
    AddPost();
    AddRemittance();
    AddReport();
    AddYearEnd();
    AddMaintenance();

    AddRates();
    AddScript();
    RefuseEmptyValues(app_);
  }

  int Run(int count, char** arguments) {
    try {
      app_.parse(count, arguments);
    } catch (const CLI::RequiredError& error) {
      // A wrong word is more to the point than the right one that is missing.
      const std::vector<std::string> unknown = app_.remaining_for_passthrough(true);
      unknown.empty() ? app_.exit(error) : app_.exit(CLI::ExtrasError(unknown));
      return kWrongUsage;
    } catch (const CLI::ParseError& error) {
      return app_.exit(error) == 0 ? 0 : kWrongUsage;
    }
    try {
      const int status = command_();
      if (!std::cout.flush()) {
        throw CommandFailure("The results can't be written to standard output.");
      }
      return status;
    } catch (const UsageFailure& failure) {
      CommandProgram::Warn(failure.what());
      return kWrongUsage;
    } catch (const CommandFailure& failure) {
      CommandProgram::Warn(failure.what());
    } catch (const RuntimeError& error) {
      CommandProgram::Warn(ErrorSentence(error.Number(), error.Description()));
    } catch (const ProgramEnded& ended) {
      return ended.exitStatus;
    }
    return kFailed;
  }

 private:
  static void RefuseEmptyValues(CLI::App& app) {
    for (CLI::Option* option : app.get_options([](CLI::Option*) { return true; })) {
      option->check(CLI::Validator(
          [](const std::string& value) {
            return value.empty() ? std::string("it can't be empty.") : std::string();
          },
          ""));
    }
    for (CLI::App* command : app.get_subcommands([](CLI::App*) { return true; })) {
      RefuseEmptyValues(*command);
    }
  }

  CLI::App* AddCommand(const char* name, const char* help, std::function<int()> run) {
    return AddCommand(app_, name, help, std::move(run));
  }

  CLI::App* AddCommand(CLI::App& parent, const char* name, const char* help,
                       std::function<int()> run) {
    CLI::App* command = parent.add_subcommand(name, help);
    command->callback([this, run = std::move(run)] { command_ = run; });
    return command;
  }

  void AddFile(CLI::App* command) {
    command->add_option("FILE", options_.file, "The company's data file")->required();
    command->add_flag("--yes", options_.assumeYes, "Answer every question with Yes");
  }

  void AddFileAndPeople(CLI::App* command, const char* name, bool& employees) {
    AddFile(command);
    command
        ->add_option_function<std::string>(
            name, [&employees](const std::string& kind) { employees = kind == "employees"; },
            "employees or subcontractors")
        ->required()
        ->check(CLI::IsMember({"employees", "subcontractors"}));
  }

  void AddPayees(CLI::App* command, PayeeOptions& payees, bool industryRequired) {
    AddFileAndPeople(command, "PAYEES", payees.employees);
    command->add_option("--industry", payees.industry, "The industry's letter, A to F")
        ->required(industryRequired);
  }

  void AddNew() {
    AddFile(AddCommand("new", "Make a new company: its data file and LorvaneConfig.ini",
                       [this] { return RunNew(options_); }));
  }

  void AddShow() {
    CLI::App* command = AddCommand("show", "Show a company: name, industries, counts, year",
                                   [this] { return RunShow(options_, json_); });
    AddFile(command);
    command->add_flag("--json", json_, "As JSON");
  }

  void AddList() {
    CLI::App* command = AddCommand("list", "List the employees or the sub-contractors on file",
                                   [this] { return RunList(options_, list_); });
    AddFileAndPeople(command, "PEOPLE", list_.employees);
    command->add_flag("--csv", list_.csv, "As CSV with a heading row");
  }

  void AddCheck() {
    CLI::App* command =
        AddCommand("check", "Check data file, tables, key counters and configuration file",
                   [this] { return RunCheck(options_, deep_); });
    AddFile(command);
    command->add_flag("--deep", deep_, "Check the books, too: payments, wages and ceilings");
  }

  void AddSql() {
    CLI::App* command = AddCommand("sql", "Run one statement; rows are printed as CSV",
                                   [this] { return RunSql(options_, statement_); });
    AddFile(command);
    command->add_option("STATEMENT", statement_, "A statement in the program's dialect")
        ->required();
  }

  void AddImport() {
    CLI::App& import = *app_.add_subcommand(
        "import", "Bring people in from a spreadsheet, or from another company");
    import.require_subcommand(1);
    const auto addSheet = [&](const char* name, const char* help, bool employees) {
      CLI::App* command = AddCommand(import, name, help, [this, employees] {
        import_.employees = employees;
        return RunImportSheet(options_, import_);
      });
      AddFile(command);
      command->add_option("SHEET", import_.sheet, "A file of kind XLSX, XLS, ODS or CSV")
          ->required();
      command->add_option("--columns", import_.columns,
                          "Take so many columns; all of the layout when not given");
      command->add_flag("--skip-on-file", import_.skipPeopleOnFile,
                        "Pass over people who are on file already");
    };
    addSheet("employees", "Bring employees in from a spreadsheet", true);
    addSheet("subcontractors", "Bring sub-contractors in from a spreadsheet", false);
    CLI::App* company = AddCommand(import, "company", "Copy another company's sub-contractors",
                                   [this] { return RunImportCompany(options_, source_); });
    AddFile(company);
    company->add_option("SOURCE", source_, "The other company's data file")->required();
  }

  void AddPay() {
    CLI::App* command = AddCommand("pay", "Save payments from a CSV file as working entries",
                                   [this] { return RunPay(options_, pay_); });
    AddPayees(command, pay_.payees, true);
    command->add_option("PAYMENTS", pay_.paymentsFile, "CSV file of rows \"id,amount\"")
        ->required();
  }

  void AddPost() {
    CLI::App* command = AddCommand("post", "Post saved entries to the year's history",
                                   [this] { return RunPost(options_, post_); });
    AddPayees(command, post_.payees, true);
    command->add_option("--date", post_.date, "Date of the payments")->required();
    command->add_option("--id", post_.ids, "Post this payee only; can be given several times");
  }

  void AddRemittance() {
    CLI::App* command = AddCommand("remittance", "List the payments of a period",
                                   [this] { return RunRemittance(options_, remittance_); });
    AddPayees(command, remittance_.payees, false);
    command->add_option("--from", remittance_.from, "First day of the period")->required();
    command->add_option("--to", remittance_.to, "Last day of the period")->required();
    AddOutput(command, remittance_.output);
  }

  static void AddOutput(CLI::App* command, std::string& path) {
    command->add_option("-o,--output", path, "A file ending in .pdf, .xlsx, .csv or .txt");
  }

  void AddReport() {
    CLI::App* command = AddCommand("report", "Make one of the year's reports",
                                   [this] { return RunReport(options_, report_); });
    AddFile(command);
    command->add_option("REPORT", report_.name, "Which report")
        ->required()
        ->check(CLI::IsMember(ReportNames()));
    command->add_option("--year", report_.year, "The year in its heading");
    AddOutput(command, report_.output);
  }

  void AddYearEnd() {
    CLI::App* close = AddCommand("year-end", "Archive the year and begin the next one",
                                 [this] { return RunCloseYear(options_, year_); });
    AddFile(close);
    close->add_option("--year", year_, "The year to close; that of the last entry when not given");
    CLI::App* roll = AddCommand("roll-rates", "Take the next year's published rates",
                                [this] { return RunRollRates(options_, year_); });
    AddFile(roll);
    roll->add_option("--year", year_, "The year being closed: the rates are the next year's")
        ->required();
  }

  void AddMaintenance() {
    AddFile(AddCommand("compact", "Take the gaps out of the data file",
                       [this] { return RunCompact(options_); }));
    AddFile(AddCommand("backup", "Make a checked copy of a company in its folder Backup",
                       [this] { return RunBackup(options_); }));
    AddFile(AddCommand("backups", "List the backups of a company, the newest first",
                       [this] { return RunBackups(options_); }));
    CLI::App* restore = AddCommand("restore", "Put the company of a backup into a folder",
                                   [this] { return RunRestore(backup_, folder_); });
    restore->add_option("BACKUP", backup_, "The backup's folder, or the data file in it")
        ->required();
    restore->add_option("FOLDER", folder_, "Where to put it; made when missing")->required();
    CLI::App* reset = AddCommand("reset-maximum", "Set every employee's maximum contribution",
                                 [this] { return RunResetMaximum(options_, amount_); });
    AddFile(reset);
    reset->add_option("AMOUNT", amount_, "The new maximum, in dollars")->required();
  }

  void AddRates() {
    CLI::App& rates = *app_.add_subcommand(
        "rates", "List the published rates, bring a year's in, or export them");
    rates.require_subcommand(1);
    AddCommand(rates, "list", "The years that have rates, and how many",
               [this] { return RunRatesList(options_); });
    const auto addYear = [this](CLI::App* command) {
      command->add_option("YEAR", ratesYear_, "The year of the rates")->required();
    };
    addYear(AddCommand(rates, "export", "A year's rates as CSV",
                       [this] { return RunRatesExport(options_, ratesYear_); }));
    CLI::App* import =
        AddCommand(rates, "import", "Bring a year's rates in from a sheet, in place of its own",
                   [this] { return RunRatesImport(options_, ratesYear_, sheet_); });
    addYear(import);
    import
        ->add_option("SHEET", sheet_,
                     "A file of kind XLSX, XLS, ODS or CSV of rows \"code,description,rate\"")
        ->required();
    import->add_flag("--yes", options_.assumeYes, "Answer every question with Yes");
  }

  void AddScript() {
    CLI::App* command = AddCommand("script", "Run a screen script", [this] { return Script(); });
    command->add_option("SCRIPT", script_.path, "The script's file")->required();
    command->add_option("--set", variables_, "NAME=VALUE for ${NAME} in the script");
    command->add_option("--now", now_, "Where the clock stands: \"1/5/2026 10:00 AM\"");
  }

  int Script() {
    for (const std::string& variable : variables_) {
      const std::size_t equals = variable.find('=');
      if (equals == std::string::npos || equals == 0) {
        throw UsageFailure("--set takes NAME=VALUE, not '" + variable + "'.");
      }
      script_.variables[variable.substr(0, equals)] = ToUtf8(variable.substr(equals + 1));
    }
    if (!now_.empty()) {
      script_.now = ParseDate(now_);
      if (!script_.now) {
        throw UsageFailure("'" + now_ + "' is no date.");
      }
    }
    return RunScript(script_);
  }

  CLI::App app_{"Lorvane: book-keeping for workers' compensation assessments", "lorvane-cli"};
  std::function<int()> command_;
  CommandOptions options_;
  bool json_ = false;
  bool deep_ = false;
  ListOptions list_;
  std::string statement_;
  ImportOptions import_;
  std::string source_;
  PayOptions pay_;
  PostOptions post_;
  RemittanceOptions remittance_;
  ReportOptions report_;
  std::string year_;
  std::string amount_;
  std::string backup_;
  std::string folder_;

  std::string ratesYear_;
  std::string sheet_;
  ScriptOptions script_;
  std::vector<std::string> variables_;
  std::string now_;
};

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  try {
    return lorvane::CommandLine().Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "lorvane-cli: " << error.what() << '\n';
    return 1;
  }
}
