#pragma once

#include <QApplication>
#include <QTranslator>

namespace quelvarn {

// The desktop application: German texts in Qt's own dialogs, and no exception that reaches the event loop.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void loadQtTexts();

    QTranslator qtTexts_;
};

} // namespace quelvarn
