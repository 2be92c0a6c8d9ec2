#include "reports/TextWrap.h"

#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr const char* kEllipsis = "\u2026";

using Measure = std::function<double(std::string_view)>;

/// Takes words and gives lines.
class Wrapper {
 public:
  Wrapper(double width, const Measure& measure) : width_(width), measure_(measure) {}

  void AddWord(const std::string& word) {
    const std::string longer = line_.empty() ? word : line_ + " " + word;
    if (Fits(longer)) {
      line_ = longer;
      return;
    }
    EndLine();
    if (Fits(word)) {
      line_ = word;
      return;
    }
    for (const std::string& character : Characters(word)) {
      if (!line_.empty() && !Fits(line_ + character)) {
        EndLine();
      }
      line_ += character;
    }
  }

  void EndLine() {
    if (!line_.empty()) {
      lines_.push_back(std::move(line_));
      line_.clear();
    }
  }

  [[nodiscard]] std::vector<std::string>& Lines() { return lines_; }

  /// The end of the line makes room for an ellipsis.
  [[nodiscard]] std::string Shortened(const std::string& line) const {
    std::string text = line;
    while (!text.empty() && !Fits(text + kEllipsis)) {
      text = Left(text, Length(text) - 1);
    }
    return text + kEllipsis;
  }

 private:
  [[nodiscard]] bool Fits(const std::string& text) const { return measure_(text) <= width_; }

  double width_;
  const Measure& measure_;
  std::string line_;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> WrapText(std::string_view text, double width, std::size_t mostLines,
                                  const Measure& measure) {
  if (text.find_first_of("\r\n") == std::string_view::npos && measure(text) <= width) {
    return {std::string(text)};
  }
  Wrapper wrapper(width, measure);
  for (const std::string& line : Split(Replace(text, "\r", ""), '\n')) {
    for (const std::string& word : Split(line, ' ')) {
      if (!word.empty()) {
        wrapper.AddWord(word);
      }
    }
    wrapper.EndLine();
  }
  std::vector<std::string>& lines = wrapper.Lines();
  if (lines.empty()) {
    lines.emplace_back();
  }
  if (lines.size() > mostLines) {
    lines.resize(mostLines);
    lines.back() = wrapper.Shortened(lines.back());
  }
  return std::move(lines);
}

}  // namespace lorvane
