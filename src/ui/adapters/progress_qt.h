#pragma once

#include "platform/progress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>

class QFrame;

namespace quelvarn {

class Fortschrittsfeld;

// Progress on the screen: in the field that the page in front lends, else in a panel over the window. The window is
// drawn while the work runs; every input but giving up is held back, so that no operation starts within another.
class QtFortschritt final : public QObject, public Fortschrittsanzeige
{
    Q_OBJECT

public:
    QtFortschritt() = default;
    ~QtFortschritt() override;

    void beginne(std::string_view text) override;
    bool schritt(std::size_t getan, std::size_t gesamt) override;
    void beende() override;

    bool atWork() const { return tiefe_ > 0; }
    // As the person would by the button.
    void giveUp() { aufgegeben_ = true; }

    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

private:
    void zeige();
    void verberge();
    bool istAbbrechen(const QObject* empfaenger) const;

    int tiefe_ = 0; // Work within work moves no bar of its own.
    bool aufgegeben_ = false;
    QString text_;
    QElapsedTimer seitBeginn_;
    QElapsedTimer seitBild_;
    QPointer<Fortschrittsfeld> feld_; // While it is shown.
    QPointer<QFrame> tafel_;          // Around the field when it is no page's.
};

} // namespace quelvarn
