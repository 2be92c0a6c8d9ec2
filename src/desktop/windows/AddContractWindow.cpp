#include "desktop/windows/AddContractWindow.h"

#include <QVBoxLayout>

#include "desktop/binder/FormGrid.h"

namespace lorvane {

AddContractWindow::AddContractWindow(frmAddContract& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  FormGrid form(binder_);
  form.Row({&screen.txtDescription});
  form.Row({&screen.txtAssessable, &screen.lblPercent});
  form.Fill();
  setLayout(form.Layout());
}

}  // namespace lorvane
