#include "data/IniDocument.h"

#include <algorithm>

#include "basic/Text.h"

namespace lorvane {
namespace {

std::string TrimWhite(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) {
    return {};
  }
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

bool IsHeading(const std::string& line) { return TrimWhite(line).starts_with('['); }

std::string HeadingOf(const std::string& line) {
  const std::string heading = TrimWhite(line);
  return TrimWhite(heading.substr(1, heading.find(']') - 1));
}

bool IsContent(const std::string& line) {
  const std::string text = TrimWhite(line);
  return !text.empty() && !text.starts_with(';');
}

std::string KeyOf(const std::string& line) { return TrimWhite(line.substr(0, line.find('='))); }

std::string RawValueOf(const std::string& line) {
  const std::size_t equals = line.find('=');
  return equals == std::string::npos ? std::string() : TrimWhite(line.substr(equals + 1));
}

bool IsQuoted(const std::string& value) {
  return value.size() >= 2 && value.front() == value.back() &&
         (value.front() == '"' || value.front() == '\'');
}

}  // namespace

IniDocument::IniDocument(std::string_view bytes) {
  const std::string text = ToUtf8(bytes);
  if (text.empty()) {
    return;
  }
  lines_ = Split(text, '\n');
  for (std::string& line : lines_) {
    while (line.ends_with('\r')) {
      line.pop_back();
    }
  }
  if (lines_.back().empty()) {
    lines_.pop_back();
  }
}

std::optional<std::string> IniDocument::Get(std::string_view section, std::string_view key) const {
  const std::optional<Span> span = SpanOf(section);
  if (!span) {
    return std::nullopt;
  }
  for (std::size_t i = span->from; i < span->to; ++i) {
    if (IsContent(lines_[i]) && lines_[i].find('=') != std::string::npos &&
        EqualsNoCase(KeyOf(lines_[i]), TrimWhite(key))) {
      std::string value = RawValueOf(lines_[i]);
      return IsQuoted(value) ? value.substr(1, value.size() - 2) : value;
    }
  }
  return std::nullopt;
}

void IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
  const std::string assignment =
      "=" + Replace(Replace(Replace(value, "\r\n", " "), "\n", " "), "\r", " ");
  std::optional<Span> span = SpanOf(section);
  if (!span) {
    lines_.push_back("[" + std::string(section) + "]");
    span = Span{lines_.size(), lines_.size()};
  }
  std::size_t end = span->from;
  for (std::size_t i = span->from; i < span->to; ++i) {
    if (!IsContent(lines_[i])) {
      continue;
    }
    if (EqualsNoCase(KeyOf(lines_[i]), TrimWhite(key))) {
      lines_[i] = KeyOf(lines_[i]) + assignment;
      return;
    }
    end = i + 1;
  }
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(end), std::string(key) + assignment);
}

std::vector<std::string> IniDocument::Section(std::string_view section) const {
  std::vector<std::string> result;
  if (const std::optional<Span> span = SpanOf(section)) {
    for (std::size_t i = span->from; i < span->to; ++i) {
      if (!IsContent(lines_[i])) {
        continue;
      }
      const bool hasValue = lines_[i].find('=') != std::string::npos;
      result.push_back(hasValue ? KeyOf(lines_[i]) + "=" + RawValueOf(lines_[i])
                                : TrimWhite(lines_[i]));
    }
  }
  return result;
}

std::string IniDocument::Text() const {
  std::string text;
  for (const std::string& line : lines_) {
    text += line + kCrLf;
  }
  return text;
}

std::optional<IniDocument::Span> IniDocument::SpanOf(std::string_view section) const {
  const auto heading = std::find_if(lines_.begin(), lines_.end(), [&](const std::string& line) {
    return IsHeading(line) && EqualsNoCase(HeadingOf(line), section);
  });
  if (heading == lines_.end()) {
    return std::nullopt;
  }
  const auto next = std::find_if(heading + 1, lines_.end(), IsHeading);
  return Span{static_cast<std::size_t>(heading - lines_.begin()) + 1,
              static_cast<std::size_t>(next - lines_.begin())};
}

}  // namespace lorvane
