// The tests of the windows: an application off screen, and an eye on what Qt complains about.

#include <array>
#include <string>
#include <string_view>

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "theme.h"

namespace {

// How the platform without a screen, and a machine without sound, begin to say what they cannot do.
constexpr std::array<std::string_view, 6> attendus{
    "This plugin does not support raise()",
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support grabbing the keyboard",
    "PulseAudioService: pa_context_connect() failed",
    "QFontDatabase: Cannot find font directory",
    "QFont::setPointSizeF: Point size <= 0 (-0.750000)",  // of Windows without its screen: in a
                                                          // menu
};

void entendre(QtMsgType genre, const QMessageLogContext& /*lieu*/, const QString& message) {
    const auto texte = message.toStdString();
    for (const auto attendu : attendus) {
        if (texte.starts_with(attendu))
            return;
    }
    if (genre == QtWarningMsg || genre == QtCriticalMsg || genre == QtFatalMsg)
        ADD_FAILURE() << "Qt : " << texte;
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir dossier;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_RUNTIME_DIR", dossier.path().toUtf8());
    ui::qt::preparer();
    QApplication application(argc, argv);
    QCoreApplication::addLibraryPath(ORVANE_MODULES);
    qInstallMessageHandler(entendre);
    ui::qt::habiller(application);
    return RUN_ALL_TESTS();
}
