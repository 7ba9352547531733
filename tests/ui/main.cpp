#include "ui/qt_warnings.h"

#include <QApplication>
#include <QByteArray>

#include <gtest/gtest.h>

namespace {

void warn(QtMsgType kind, const QMessageLogContext& /*ort*/, const QString& text)
{
    if (quelvarn::test::isFault(kind, text))
        ADD_FAILURE() << "Qt: " << text.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(warn);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
