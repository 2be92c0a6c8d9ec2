#pragma once

#include <string>
#include <string_view>

#include "import/sheet/ZipFile.h"

namespace lorvane {

/// The attributes of an element, while its start is handled.
class XmlAttributes {
 public:
  explicit XmlAttributes(const char** pairs) : pairs_(pairs) {}

  /// The value of the attribute of that name, whatever its namespace, or of "namespace's
  /// end|name". Empty when there is none.
  [[nodiscard]] std::string_view Get(std::string_view name) const;

 private:
  const char** pairs_;
};

/// What reading an XML document calls. Names come without their namespaces.
class XmlHandler {
 public:
  XmlHandler() = default;
  XmlHandler(const XmlHandler&) = delete;
  XmlHandler& operator=(const XmlHandler&) = delete;
  virtual ~XmlHandler() = default;

  virtual void Start(std::string_view name, const XmlAttributes& attributes) = 0;
  virtual void End(std::string_view name) = 0;
  /// May come in several pieces.
  virtual void Text(std::string_view /*text*/) {}
};

/// Reads an entry of an archive as an XML document. Raises 75 when it is none, and what the handler
/// raises.
void ReadXml(ZipFile& archive, const std::string& entry, XmlHandler& handler);

}  // namespace lorvane
