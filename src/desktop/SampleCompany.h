#pragma once

#include <string>

namespace lorvane {

class Session;

/// The data file of the user's copy of the sample company, in a folder of their documents. It is
/// made when it isn't there; a copy that is stays as it was left. Raises the error of Files.
[[nodiscard]] std::string UserSampleCompany(const Session& session);

}  // namespace lorvane
