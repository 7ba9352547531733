#pragma once

#include <QApplication>
#include <QTranslator>

namespace quelvarn {

// The desktop application: German texts in Qt's own dialogs, and no exception that reaches the event loop.
class Anwendung : public QApplication
{
    Q_OBJECT

public:
    Anwendung(int& argc, char** argv);

    bool notify(QObject* empfaenger, QEvent* ereignis) override;

private:
    void ladeQtTexte();

    QTranslator qtTexte_;
};

} // namespace quelvarn
