#pragma once

#include "ui/guard.h"

#include <QKeyEvent>
#include <QModelIndex>
#include <QMouseEvent>

#include <functional>

namespace quelvarn {

// A grid or tree that tells which entry a person chose, by mouse or keyboard, also the same one again. What the
// program shows by itself is told to no one.
template <typename Ansicht> class Wahlansicht : public Ansicht
{
public:
    using Ansicht::Ansicht;

    std::function<void(const QModelIndex&)> gewaehlt;
    std::function<void(const QModelIndex&)> angeklickt; // Instead, where a choice by mouse means something else.
    std::function<void(const QModelIndex&)> geoeffnet;  // Double click or Enter.
    std::function<void(const QModelIndex&)> eingegeben; // Enter, where it is not the same as a double click.

    void zeigeGewaehlt(const QModelIndex& stelle)
    {
        if (this->currentIndex() == stelle)
            return;
        still([&] { this->setCurrentIndex(stelle); });
    }

    // What happens in here is no choice of a person.
    template <typename Schritt> void still(const Schritt& schritt)
    {
        const bool vorher = still_;
        still_ = true;
        schritt();
        still_ = vorher;
    }

    // Typing must not walk through a million rows.
    void keyboardSearch(const QString& /*text*/) override {}

protected:
    void currentChanged(const QModelIndex& jetzt, const QModelIndex& vorher) override
    {
        Ansicht::currentChanged(jetzt, vorher);
        if (!still_ && !maus_ && jetzt.isValid() && jetzt.siblingAtColumn(0) != vorher.siblingAtColumn(0))
            melde(gewaehlt, jetzt);
    }

    void mousePressEvent(QMouseEvent* ereignis) override
    {
        maus_ = ereignis->button() == Qt::LeftButton;
        vorDemKlick_ = this->currentIndex();
        Ansicht::mousePressEvent(ereignis);
    }

    // A choice by mouse counts when the button is up again: a message box must not hold it down.
    void mouseReleaseEvent(QMouseEvent* ereignis) override
    {
        Ansicht::mouseReleaseEvent(ereignis);
        if (!maus_)
            return;
        maus_ = false;
        const QModelIndex jetzt = this->currentIndex();
        const bool getroffen = this->visualRect(jetzt).contains(ereignis->position().toPoint());
        if (jetzt.isValid() && (getroffen || jetzt != vorDemKlick_))
            melde(angeklickt ? angeklickt : gewaehlt, jetzt);
    }

    void mouseDoubleClickEvent(QMouseEvent* ereignis) override
    {
        Ansicht::mouseDoubleClickEvent(ereignis);
        const QModelIndex stelle = this->indexAt(ereignis->position().toPoint());
        if (ereignis->button() == Qt::LeftButton && stelle.isValid())
            melde(geoeffnet, stelle);
    }

    void keyPressEvent(QKeyEvent* ereignis) override
    {
        const bool eingabe = ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter;
        if (!eingabe || !this->currentIndex().isValid())
            return Ansicht::keyPressEvent(ereignis);
        melde(eingegeben ? eingegeben : geoeffnet, this->currentIndex());
    }

    // The first focus makes the first entry current.
    void focusInEvent(QFocusEvent* ereignis) override
    {
        still([&] { Ansicht::focusInEvent(ereignis); });
    }

private:
    static void melde(const std::function<void(const QModelIndex&)>& wem, const QModelIndex& stelle)
    {
        if (wem)
            Waechter::aktuell().fuehreAus([&] { wem(stelle); });
    }

    bool still_ = false;
    bool maus_ = false;
    QPersistentModelIndex vorDemKlick_;
};

} // namespace quelvarn
