#include "import/sheet/XmlReader.h"

#include <expat.h>

#include <exception>
#include <memory>
#include <type_traits>

#include "import/sheet/SheetFailure.h"

namespace lorvane {
namespace {

constexpr char kBehindNamespace = '|';

std::string_view LocalName(std::string_view name) {
  return name.substr(name.rfind(kBehindNamespace) + 1);
}

// Hands events of the parser to the handler. No exception passes through the parser, which is C:
// the first one stops it and is thrown on from here.
class Reader {
 public:
  explicit Reader(XmlHandler& handler)
      : handler_(handler), parser_(XML_ParserCreateNS(nullptr, kBehindNamespace)) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), OnStart, OnEnd);
    XML_SetCharacterDataHandler(parser_.get(), OnText);
    XML_SetStartDoctypeDeclHandler(parser_.get(), OnDoctype);
  }

  // False when the text is no XML.
  bool Feed(std::string_view block, bool last) {
    const XML_Status status =
        XML_Parse(parser_.get(), block.data(), static_cast<int>(block.size()), last ? 1 : 0);
    fed_ += static_cast<XML_Index>(block.size());
    if (failure_) {
      std::rethrow_exception(failure_);
    }
    // A tag that doesn't end would be kept whole.
    constexpr XML_Index kLongestTag = 1 << 20;
    return status == XML_STATUS_OK && fed_ - XML_GetCurrentByteIndex(parser_.get()) < kLongestTag;
  }

 private:
  struct Free {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  template <typename Event>
  static void Guard(void* reader, Event event) {
    auto& self = *static_cast<Reader*>(reader);
    if (self.failure_) {
      return;
    }
    try {
      event(self.handler_);
    } catch (...) {
      self.failure_ = std::current_exception();
      XML_StopParser(self.parser_.get(), XML_FALSE);
    }
  }
  static void OnStart(void* reader, const char* name, const char** attributes) {
    Guard(reader,
          [&](XmlHandler& handler) { handler.Start(LocalName(name), XmlAttributes(attributes)); });
  }
  static void OnEnd(void* reader, const char* name) {
    Guard(reader, [&](XmlHandler& handler) { handler.End(LocalName(name)); });
  }
  static void OnText(void* reader, const char* text, int length) {
    Guard(reader, [&](XmlHandler& handler) {
      handler.Text({text, static_cast<std::size_t>(length)});
    });
  }
  // No workbook has one; entities that multiply live there.
  static void OnDoctype(void* reader, const char* /*name*/, const char* /*system*/,
                        const char* /*publicId*/, int /*hasInternal*/) {
    XML_StopParser(static_cast<Reader*>(reader)->parser_.get(), XML_FALSE);
  }

  XmlHandler& handler_;
  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser_;
  std::exception_ptr failure_;
  XML_Index fed_ = 0;
};

}  // namespace

std::string_view XmlAttributes::Get(std::string_view name) const {
  for (const char** pair = pairs_; *pair != nullptr; pair += 2) {
    const std::string_view full = *pair;
    if (full.ends_with(name) &&
        (full.size() == name.size() || full[full.size() - name.size() - 1] == kBehindNamespace ||
         full[full.size() - name.size() - 1] == ':')) {
      return pair[1];
    }
  }
  return {};
}

void ReadXml(ZipFile& archive, const std::string& entry, XmlHandler& handler) {
  Reader reader(handler);
  const auto require = [&](bool understood) {
    if (!understood) {
      RefuseSheet(archive.Path(), "is damaged: " + entry + " can't be understood.");
    }
  };
  archive.Read(entry, [&](std::string_view block) { require(reader.Feed(block, false)); });
  require(reader.Feed({}, true));
}

}  // namespace lorvane
