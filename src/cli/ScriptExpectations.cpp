#include "cli/ScriptExpectations.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "basic/Text.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptValues.h"
#include "cli/Statements.h"

namespace lorvane {
namespace {

constexpr std::string_view kAny = "*";

// An expectation at work; the words behind "expect NAME" are its arguments.
struct Expectation {
  ScriptProgram* program;
  ScriptDialogue& dialogue;
  const ScriptLine& line;

  [[nodiscard]] const std::string& Argument(std::size_t place) const {
    return line.words[place + 2].text;
  }
};

[[noreturn]] void Fail(const std::string& subject, const std::string& expected,
                       const std::string& found) {
  throw ScriptFailure{"expected " + subject + " to be " + ScriptText(expected) + " but it is " +
                      ScriptText(found)};
}

void Compare(const std::string& subject, const std::string& expected, const std::string& found) {
  if (WithLineFeeds(expected) != WithLineFeeds(found)) {
    Fail(subject, expected, found);
  }
}

bool Matches(const std::string& expected, const std::string& found) {
  return expected == kAny || WithLineFeeds(expected) == WithLineFeeds(found);
}

void CompareShown(const Expectation& expectation, const std::optional<ShownBox>& shown) {
  const ShownBox expected{expectation.Argument(0), expectation.Argument(1)};
  const std::string sentence =
      "expected " + expectation.line.words[1].text + " " + WrittenBox(expected);
  if (!shown) {
    throw ScriptFailure{sentence + " but there is none"};
  }
  if (!Matches(expected.title, shown->title) || !Matches(expected.text, shown->text)) {
    throw ScriptFailure{sentence + " but it is " + WrittenBox(*shown)};
  }
}

void ExpectBox(const Expectation& expectation) {
  CompareShown(expectation, expectation.dialogue.TakeBox());
}

void ExpectInput(const Expectation& expectation) {
  CompareShown(expectation, expectation.dialogue.TakeInput());
}

void ExpectNoBox(const Expectation& expectation) {
  if (const std::optional<ShownBox> left = expectation.dialogue.TakeBox()) {
    throw ScriptFailure{"expected no box but there is " + WrittenBox(*left)};
  }
}

void ExpectFile(const Expectation& expectation) {
  std::error_code ignored;
  const bool found = std::filesystem::exists(expectation.Argument(0), ignored);
  Compare("file " + ScriptText(expectation.Argument(0)), expectation.Argument(1), FlagText(found));
}

void ExpectIni(const Expectation& expectation) {
  const std::string& section = expectation.Argument(0);
  const std::string& key = expectation.Argument(1);
  cINI ini = expectation.program->GetSession().Ini();
  Compare("ini " + ScriptText(section) + " " + ScriptText(key), expectation.Argument(2),
          ini.KeyGet(section, key, ""));
}

void ExpectSql(const Expectation& expectation) {
  const std::string& statement = expectation.Argument(0);
  Compare("sql " + ScriptText(statement), expectation.Argument(1),
          FirstValue(expectation.program->GetSession().gDataConn->Connection(), statement));
}

// Names compare without regard to case.
void ExpectName(const Expectation& expectation) {
  const std::string& subject = expectation.line.words[1].text;
  const std::string found = ReadValue(*expectation.program, subject);
  if (!EqualsNoCase(found, expectation.Argument(0))) {
    Fail(subject, expectation.Argument(0), found);
  }
}

void ExpectValue(const Expectation& expectation) {
  const std::string& subject = expectation.line.words[1].text;
  Compare(subject, expectation.Argument(0), ReadValue(*expectation.program, subject));
}

struct Form {
  std::string_view name;
  /// Words behind the name.
  std::size_t arguments;
  bool outlivesProgram;
  void (*run)(const Expectation&);
};

constexpr std::array kForms{
    Form{"box", 2, true, ExpectBox},      Form{"nobox", 0, true, ExpectNoBox},
    Form{"input", 2, true, ExpectInput},  Form{"file", 2, true, ExpectFile},
    Form{"ini", 3, false, ExpectIni},     Form{"sql", 2, false, ExpectSql},
    Form{"active", 1, false, ExpectName}, Form{"focus", 1, false, ExpectName},
};
constexpr Form kValueForm{"", 1, false, ExpectValue};

const Form& FormOf(const ScriptLine& line) {
  const auto* found = std::find_if(kForms.begin(), kForms.end(),
                                   [&](const Form& form) { return line.words[1].Is(form.name); });
  return found == kForms.end() ? kValueForm : *found;
}

}  // namespace

void CheckExpectation(const ScriptLine& line) {
  if (line.words.size() < 2 || line.words.size() != FormOf(line).arguments + 2) {
    throw ScriptFailure{"expect stands with the wrong number of words", line.number};
  }
}

bool OutlivesProgram(const ScriptLine& line) { return FormOf(line).outlivesProgram; }

void Expect(ScriptProgram* program, ScriptDialogue& dialogue, const ScriptLine& line) {
  FormOf(line).run({program, dialogue, line});
}

}  // namespace lorvane
