#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// The text in lines that fit `width`, broken at blanks, and inside a word that doesn't fit alone.
/// Of more than `mostLines` the rest is cut, and the last ends in an ellipsis. At least one line.
[[nodiscard]] std::vector<std::string> WrapText(
    std::string_view text, double width, std::size_t mostLines,
    const std::function<double(std::string_view)>& measure);

}  // namespace lorvane
