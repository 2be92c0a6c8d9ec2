#include "cli/ScriptRunner.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <filesystem>
#include <optional>
#include <ostream>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/ScriptActions.h"
#include "cli/ScriptExpectations.h"
#include "cli/ScriptValues.h"
#include "cli/Statements.h"
#include "data/engine/Engine.h"

namespace lorvane {
namespace {

struct ProgramVerb {
  std::string_view verb;
  /// Words, the verb among them.
  std::size_t words;
};

// "expect" and "fails" check their words themselves.
constexpr std::array kProgramVerbs{
    ProgramVerb{"open", 2},  ProgramVerb{"restart", 1}, ProgramVerb{"answer", 2},
    ProgramVerb{"close", 1}, ProgramVerb{"sql", 2},     ProgramVerb{"ini", 4},
    ProgramVerb{"print", 2}, ProgramVerb{"dump", 1},
};

const ProgramVerb* FindProgramVerb(const ScriptWord& word) {
  const auto* found = std::find_if(kProgramVerbs.begin(), kProgramVerbs.end(),
                                   [&](const ProgramVerb& verb) { return word.Is(verb.verb); });
  return found == kProgramVerbs.end() ? nullptr : &*found;
}

// An error number as people write it: 13, or 0x80040E14.
std::optional<std::int32_t> ParseErrorNumber(std::string_view text) {
  constexpr int kDecimal = 10;
  constexpr int kHexadecimal = 16;
  const bool hexadecimal = text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0;
  if (hexadecimal) {
    text.remove_prefix(2);
  }
  std::int64_t number = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] =
      std::from_chars(text.data(), end, number, hexadecimal ? kHexadecimal : kDecimal);
  if (error != std::errc() || rest != end || number > 0xFFFFFFFF || number < INT32_MIN) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(number);
}

std::string ErrorText(const RuntimeError& error) {
  return "run-time error " + ErrorNumberText(error.Number()) + ": " +
         OnOneLine(error.Description());
}

// For a line of the console: a script may hold texts of any length.
std::string Shortened(const std::string& message) {
  constexpr std::size_t kLongest = 1000;
  return Length(message) <= kLongest ? message : Left(message, kLongest) + "...";
}

// The line that "fails NUMBER LINE" runs.
ScriptLine InnerLine(const ScriptLine& line) {
  return {line.number, {line.words.begin() + 2, line.words.end()}};
}

}  // namespace

ScriptRunner::ScriptRunner(ScriptStage stage, Console console, Clock clock)
    : stage_(std::move(stage)), console_(console), clock_(std::move(clock)) {}

bool ScriptRunner::Run(const std::string& name, std::string_view text,
                       const ScriptVariables& variables) {
  try {
    lines_ = ParseScript(text, variables);
    for (const ScriptLine& line : lines_) {
      Check(line);
    }
    RunToTheEnd();
    program_.reset();
    if (!dialogue_.Answers().empty()) {
      const ScriptAnswer& left = dialogue_.Answers().front();
      throw ScriptFailure{"the answer " + left.Written() + " is left over", left.line};
    }
    return true;
  } catch (const ScriptFailure& failure) {
    program_.reset();
    console_.out << name << ':';
    if (failure.line != 0) {
      console_.out << failure.line << ':';
    }
    console_.out << ' ' << Shortened(failure.message) << std::endl;
    return false;
  }
}

void ScriptRunner::Check(const ScriptLine& line) {
  const ScriptWord& verb = line.words[0];
  if (verb.Is("expect")) {
    CheckExpectation(line);
  } else if (verb.Is("fails")) {
    if (line.words.size() < 3 || !ParseErrorNumber(line.words[1].text)) {
      throw ScriptFailure{"fails takes an error's number and a line", line.number};
    }
    Check(InnerLine(line));
  } else if (const ProgramVerb* known = FindProgramVerb(verb)) {
    if (line.words.size() != known->words) {
      throw ScriptFailure{verb.text + " stands with the wrong number of words", line.number};
    }
  } else if (ScriptActions::Knows(verb)) {
    ScriptActions::CheckWords(line);
  } else {
    throw ScriptFailure{"there is no step " + ScriptText(verb.text), line.number};
  }
}

void ScriptRunner::Start() {
  program_.reset();
  dialogue_.DropNextFile();
  program_ = std::make_unique<ScriptProgram>(stage_, console_, clock_, dialogue_,
                                             [this](Screen& window) { RunLines(&window); });
  try {
    program_->Start();
  } catch (const RuntimeError& error) {
    throw UnhandledError{error, next_ == 0 ? 0 : lines_[next_ - 1].number};
  }
}

void ScriptRunner::RunToTheEnd() {
  bool start = true;
  while (true) {
    try {
      if (std::exchange(start, false)) {
        Start();
      }
      RunLines(nullptr);
      return;
    } catch (const ScriptRestart&) {
      start = true;
    } catch (const ScriptEnd&) {
      return;
    } catch (const UnhandledError& failed) {
      EndOnError(failed);
    } catch (const ProgramEnded& ended) {
      program_.reset();
      if (ended.exitStatus != 0) {
        throw ScriptFailure{"the program ended with status " + std::to_string(ended.exitStatus),
                            next_ == 0 ? 0 : lines_[next_ - 1].number};
      }
    }
  }
}

void ScriptRunner::RunLines(const Screen* window) {
  while (next_ < lines_.size()) {
    if (window != nullptr && window->IsClosed()) {
      return;
    }
    RunLine(lines_[next_++]);
  }
  if (window != nullptr && !window->IsClosed()) {
    throw ScriptEnd{};
  }
}

void ScriptRunner::RunLine(const ScriptLine& line) {
  try {
    Act(line);
    if (stage_.afterLine && program_ != nullptr) {
      stage_.afterLine(*program_, line.number);
    }
  } catch (ScriptFailure& failure) {
    failure.line = failure.line == 0 ? line.number : failure.line;
    throw;
  } catch (const RuntimeError& error) {
    throw UnhandledError{error, line.number};
  } catch (const std::exception& error) {
    throw ScriptFailure{std::string("internal error: ") + error.what(), line.number};
  }
}

void ScriptRunner::Act(const ScriptLine& line) {
  const ScriptWord& verb = line.words[0];
  if (verb.Is("expect")) {
    Expect(OutlivesProgram(line) ? program_.get() : &Program(), dialogue_, line);
  } else if (verb.Is("fails")) {
    RunFailing(line);
  } else if (verb.Is("restart")) {
    throw ScriptRestart{};
  } else if (verb.Is("open")) {
    OpenCompany(line.words[1].text);
  } else if (verb.Is("answer")) {
    Answer(line);
  } else if (verb.Is("close")) {
    Program().ActiveScreen().Close();
  } else if (verb.Is("sql")) {
    RunStatement(line.words[1].text);
  } else if (verb.Is("ini")) {
    WriteIni(line);
  } else if (verb.Is("print")) {
    console_.out << ReadValue(Program(), line.words[1].text) << std::endl;
  } else if (verb.Is("dump")) {
    console_.out << DescribeScreen(Program().ActiveScreen()) << std::flush;
  } else {
    ScriptActions::Run(Program(), line, [&](const std::string& note) {
      console_.err << "[script] line " << line.number << ": " << Shortened(note) << std::endl;
    });
  }
}

void ScriptRunner::EndOnError(const UnhandledError& failed) {
  try {
    stage_.endOnError(program_->Context(), failed.error);
  } catch (const ProgramEnded&) {
    // The reason is told below.
  }
  throw ScriptFailure{ErrorText(failed.error), failed.line};
}

ScriptProgram& ScriptRunner::Program() const {
  if (program_ == nullptr) {
    throw ScriptFailure{"the program has ended"};
  }
  return *program_;
}

void ScriptRunner::OpenCompany(const std::string& path) {
  if (program_ == nullptr) {
    Start();
  }
  Control* entry = program_->MainScreen().Find("mnuFOpenCompany");
  if (entry == nullptr) {
    throw ScriptFailure{"the main window has no mnuFOpenCompany"};
  }
  std::error_code ignored;
  const std::string full = std::filesystem::absolute(path, ignored).string();
  dialogue_.AnswerNextFile(full.empty() ? path : full);
  entry->UserClick();
  if (dialogue_.DropNextFile()) {
    throw ScriptFailure{"the main window asked for no file"};
  }
}

void ScriptRunner::RunFailing(const ScriptLine& line) {
  const std::int32_t expected = *ParseErrorNumber(line.words[1].text);
  const std::string sentence = "expected run-time error " + ErrorNumberText(expected);
  try {
    RunLine(InnerLine(line));
  } catch (const UnhandledError& failed) {
    if (failed.error.Number() == expected) {
      console_.err << "[script] line " << failed.line << ": " << ErrorText(failed.error)
                   << std::endl;
      throw ScriptRestart{};
    }
    throw ScriptFailure{sentence + " but it was " + ErrorText(failed.error)};
  } catch (const ScriptRestart&) {
    throw ScriptFailure{sentence + " but the program was started afresh"};
  } catch (const ScriptEnd&) {
    throw ScriptFailure{sentence + " but the script came to its end"};
  } catch (const ProgramEnded&) {
    throw ScriptFailure{sentence + " but the program ended"};
  }
  throw ScriptFailure{sentence + " but there was none"};
}

void ScriptRunner::Answer(const ScriptLine& line) {
  using Kind = ScriptAnswer::Kind;
  constexpr std::array kButtons{std::pair{std::string_view("yes"), Kind::kYes},
                                std::pair{std::string_view("no"), Kind::kNo},
                                std::pair{std::string_view("cancel"), Kind::kCancel},
                                std::pair{std::string_view("ok"), Kind::kOk}};
  const ScriptWord& word = line.words[1];
  const auto* button = std::find_if(kButtons.begin(), kButtons.end(),
                                    [&](const auto& known) { return word.Is(known.first); });
  const Kind kind = button == kButtons.end() ? Kind::kText : button->second;
  dialogue_.Answer({kind, kind == Kind::kText ? word.text : std::string(), line.number});
}

void ScriptRunner::RunStatement(const std::string& statement) {
  EngineConnection& connection = Program().GetSession().gDataConn->Connection();
  if (IsSelect(statement)) {
    static_cast<void>(connection.Query(statement));
  } else {
    connection.Execute(statement);
  }
}

void ScriptRunner::WriteIni(const ScriptLine& line) {
  cINI ini = Program().GetSession().Ini();
  if (ini.ConfigName.empty()) {
    throw ScriptFailure{"no company is open"};
  }
  // As properties, so that "NA" is a value like any other.
  ini.Section = line.words[1].text;
  ini.KeyName = line.words[2].text;
  ini.KeyValue = line.words[3].text;
  ini.KeySave("NA", "NA", "NA");
}

}  // namespace lorvane
