#include "desktop/binder/ToolStrip.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QToolButton>

#include "desktop/binder/WindowBinder.h"

namespace lorvane {

QGroupBox* MakeToolStrip(WindowBinder& binder, Frame& frame,
                         std::initializer_list<StripTool> tools) {
  constexpr int kGap = 2;
  QGroupBox* strip = binder.Make(frame);
  strip->setFlat(true);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (const StripTool& tool : tools) {
    if (tool.gapBefore) {
      row->addSpacing(kGap * strip->fontMetrics().averageCharWidth());
    }
    row->addWidget(binder.MakeTool(*tool.command, tool.icon));
  }
  row->addStretch(1);
  return strip;
}

}  // namespace lorvane
