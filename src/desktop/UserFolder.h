#pragma once

#include <QDir>

namespace lorvane {

/// Where users keep what is theirs: their folder of documents, or their home when there is none.
[[nodiscard]] QDir UserFolder();

}  // namespace lorvane
