#include <QApplication>
#include <QByteArray>

#include <gtest/gtest.h>

namespace {

// A warning of the toolkit is a fault of ours, but for what the platform without a screen cannot do.
void warnung(QtMsgType art, const QMessageLogContext& /*ort*/, const QString& text)
{
    if (art == QtDebugMsg || art == QtInfoMsg || text.contains(QLatin1String("propagateSizeHints")) ||
        text.startsWith(QLatin1String("This plugin does not support")) ||
        text.contains(QLatin1String("XDG_RUNTIME_DIR")))
        return;
    ADD_FAILURE() << "Qt: " << text.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(warnung);
    QApplication anwendung(argc, argv);
    return RUN_ALL_TESTS();
}
