#include "screen/modStatus.h"

#include <vector>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

constexpr std::size_t kSavedParts = 4;

void SetPanel(ScreenContext context, std::string& panel, const std::string& text) {
  panel = text;
  if (context.session.status.OnChanged) {
    context.session.status.OnChanged();
  }
}

}  // namespace

void StatusMsg(ScreenContext context, const std::string& text) {
  SetPanel(context, context.session.status.Msg, text);
}

void StatusAssessment(ScreenContext context, const std::string& text) {
  SetPanel(context, context.session.status.Assessment, "Status: " + text);
}

void StatusForm(ScreenContext context, const std::string& text) {
  SetPanel(context, context.session.status.Form, text);
}

std::string StatusSave(ScreenContext context) {
  const StatusPanels& status = context.session.status;
  return status.Msg + "\t" + status.Assessment + "\t" + status.Form + "\t" +
         std::to_string(context.services.Pointer());
}

std::string StatusPush(ScreenContext context, const std::string& text) {
  std::string saved = StatusSave(context);
  StatusMsg(context, text);
  context.services.SetPointer(pointer::kHourglass);
  return saved;
}

void StatusPop(ScreenContext context, const std::string& saved, bool restorePointer) {
  const std::vector<std::string> parts = Split(saved, '\t');
  if (parts.size() < kSavedParts) {
    throw RuntimeError(error_number::kOverflow);
  }
  StatusPanels& status = context.session.status;
  status.Msg = parts[0];
  status.Assessment = parts[1];
  SetPanel(context, status.Form, parts[2]);
  if (restorePointer) {
    context.services.SetPointer(ToInteger(parts[3]));
  }
}

}  // namespace lorvane
