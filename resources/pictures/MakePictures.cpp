// Makes the manual's pictures: runs screen scripts on the whole program, each file's on a new
// company and a copy of the sample company, and draws the windows where their comments ask for it.
//
//   make-pictures PICTURES PAGES SCRIPT...     PICTURES is made anew; PAGES holds the manual's
//   pages
//
// A script has ${DIR}, a new folder, and ${SAMPLE}, a folder with a copy of the sample company,
// which the scripts of one file share. The same scripts give the same bytes: style, colours, font,
// screen and clock are fixed.

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <set>
#include <sstream>

#include "PictureScripts.h"
#include "Version.h"
#include "WindowPicture.h"
#include "basic/RuntimeError.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptRunner.h"
#include "data/Files.h"
#include "data/engine/Engine.h"
#include "desktop/binder/Icons.h"
#include "desktop/binder/ScreenGate.h"
#include "print/PdfPainter.h"
#include "reports/ReportScreen.h"
#include "shell/modLorvane.h"

namespace fs = std::filesystem;

namespace lorvane {
namespace {

constexpr DateTime kNow{2026, 11, 23, 9, 0, 0};
constexpr double kScale = 1.5;
constexpr double kDotsPerInch = 96;
constexpr double kInchesPerMetre = 1 / 0.0254;

// A picture holds no state of something that moves.
class StillStyle : public QProxyStyle {
 public:
  StillStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_Widget_Animation_Duration || hint == SH_BlinkCursorWhenTextSelected
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

/// Makes the pictures of one script after the other.
class PictureMaker {
 public:
  PictureMaker(fs::path pictures, QString pages)
      : pictures_(std::move(pictures)),
        pages_(std::move(pages)),
        gate_([](const RuntimeError& error) { throw ScriptFailure{error.Description()}; },
              [](int) {}),
        windows_(gate_) {}

  [[nodiscard]] WindowPictures& Windows() { return windows_; }
  /// False when the script doesn't hold; the reason stands on standard error.
  bool Run(const PictureScript& script, const ScriptVariables& variables) {
    std::istringstream in;
    std::ostringstream said;
    DiskFiles files;
    const std::unique_ptr<Engine> engine = MakeFileEngine();
    const Clock clock = FixedClock(kNow);
    PdfPainter painter;
    ScriptStage stage;
    stage.makeSession = [&] { return Main({engine.get(), ProgramFolder(), clock}, files); };
    stage.screens = AllScreens();
    stage.endOnError = [](ScreenContext context, const RuntimeError& error) {
      EndOnUnhandledError(context, error);
    };
    stage.painter = &painter;
    const ScreenRegistry screens = stage.screens;
    stage.afterLine = [&](ScriptProgram& program, int line) {
      const auto wanted = script.pictures.find(line);
      if (wanted != script.pictures.end()) {
        for (const WantedPicture& picture : wanted->second) {
          Save(picture.name, Draw(picture, program, screens));
        }
      }
    };
    ScriptRunner runner(std::move(stage), {in, std::cerr, said}, clock);
    if (!runner.Run(script.name, script.text, variables)) {
      std::cerr << said.str();
      return false;
    }
    for (const auto& [line, wanted] : script.pictures) {
      for (const WantedPicture& picture : wanted) {
        if (made_.count(picture.name) == 0) {
          std::cerr << script.name << ": there was no time for " << picture.name << std::endl;
          return false;
        }
      }
    }
    return true;
  }

 private:
  QImage Draw(const WantedPicture& wanted, ScriptProgram& program, const ScreenRegistry& screens) {
    switch (wanted.kind) {
      case WantedPicture::Kind::kManual:
        return WindowPictures::OfManual(pages_);
      case WantedPicture::Kind::kPage:
        return WindowPictures::OfPage(dynamic_cast<ReportScreen&>(program.ActiveScreen()).CRViewer1,
                                      wanted.page);
      case WantedPicture::Kind::kWindow:
        break;
    }
    const ScreenContext context = program.Context();
    if (wanted.screen.empty()) {
      return windows_.OfScreen(program.ActiveScreen(), context);
    }
    if (Screen* open = program.Services().FindScreen(wanted.screen)) {
      return windows_.OfScreen(*open, context);
    }
    const std::unique_ptr<Screen> made = screens.Make(wanted.screen, context);
    if (made == nullptr) {
      throw ScriptFailure{"there is no screen " + wanted.screen};
    }
    made->Load();
    return windows_.OfScreen(*made, context);
  }

  void Save(const std::string& name, QImage picture) {
    if (picture.width() > WindowPictures::kWidest) {
      throw ScriptFailure{name + " is " + std::to_string(picture.width()) + " pixels wide"};
    }
    if (!made_.insert(name).second) {
      throw ScriptFailure{"there are two pictures " + name};
    }
    // Whoever shows it learns how large it is meant to be.
    const int dots = static_cast<int>(kDotsPerInch * picture.devicePixelRatio() * kInchesPerMetre);
    picture.setDotsPerMeterX(dots);
    picture.setDotsPerMeterY(dots);
    const fs::path path = pictures_ / (name + ".png");
    if (!picture.save(QString::fromStdString(path.string()))) {
      throw ScriptFailure{path.string() + " can't be written"};
    }
  }

  fs::path pictures_;
  QString pages_;
  ScreenGate gate_;
  WindowPictures windows_;
  std::set<std::string> made_;
};

bool MakePictures(const fs::path& pictures, const std::string& pages,
                  const std::vector<std::string>& files) {
  fs::remove_all(pictures);
  fs::create_directories(pictures);
  PictureMaker maker(pictures, QString::fromStdString(pages));
  for (const std::string& file : files) {
    const QTemporaryDir folder;
    const fs::path inside = folder.path().toStdString();
    fs::create_directories(inside / "new");
    fs::copy(ProgramFolder() + "/Resource/Sample Data", inside / "sample",
             fs::copy_options::recursive);
    maker.Windows().ShowAsHome(folder.path());
    fs::copy(fs::path(file).parent_path(), inside / "files");
    const ScriptVariables variables{{"DIR", (inside / "new").string()},
                                    {"SAMPLE", (inside / "sample").string()},
                                    {"FILES", (inside / "files").string()},
                                    {"VERSION", kVersionText}};
    for (const PictureScript& script : ReadPictureScripts(file)) {
      if (!maker.Run(script, variables)) {
        return false;
      }
    }
  }
  return true;
}

// A screen of a fixed size and sharpness, whatever the machine has.
void DescribeScreen(const QString& path) {
  constexpr const char* kScreen =
      R"({"screens": [{"name": "paper", "x": 0, "y": 0, "width": 3000, "height": 2400,)"
      R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(kScreen) < 0) {
    throw RuntimeError(error_number::kPathFileAccess, path.toStdString());
  }
}

int Run(int argc, char** argv) {
  constexpr int kLeast = 4;
  constexpr int kPointSize = 10;
  if (argc < kLeast) {
    std::cerr << "usage: make-pictures PICTURES PAGES SCRIPT..." << std::endl;
    return 2;
  }
  const QTemporaryDir folder;
  const QString screen = folder.filePath(QStringLiteral("screen.json"));
  DescribeScreen(screen);
  for (const char* name :
       {"QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"}) {
    qunsetenv(name);
  }
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toUtf8());
  qputenv("QT_SCALE_FACTOR", QByteArray::number(kScale));
  // What the toolkit notes about a display that isn't there is of no use to anybody.
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
      std::cerr << "make-pictures: " << text.toStdString() << std::endl;
    }
  });
  QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
  const QApplication application(argc, argv);
  QApplication::setStyle(new StillStyle);
  QApplication::setPalette(QApplication::style()->standardPalette());
  QFont font(QStringLiteral("Liberation Sans"), kPointSize);
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  QApplication::setFont(font);
  QApplication::setCursorFlashTime(0);
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);
  return MakePictures(argv[1], argv[2], {argv + 3, argv + argc}) ? 0 : 1;
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  try {
    return lorvane::Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "make-pictures: " << error.what() << std::endl;
  } catch (const lorvane::ScriptFailure& failure) {
    std::cerr << "make-pictures: " << failure.message << std::endl;
  }
  return EXIT_FAILURE;
}
