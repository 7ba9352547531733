#pragma once

#include "viewing/viewer.h"

#include <QPointer>
#include <QWidget>

#include <array>

class QLabel;

namespace quelvarn {

class Dateien;
class KurzLabel;

// The place of one document among the controls of a page: the sign of its type, its name and its folder.
class Dokumentbild : public QWidget
{
    Q_OBJECT

public:
    Dokumentbild();

    // "" clears it.
    void zeige(std::string_view filename);

protected:
    void changeEvent(QEvent* ereignis) override;

private:
    void zeichne();

    std::string_view zeichen_;
    QLabel* bild_;
    KurzLabel* name_;
    KurzLabel* ordner_;
};

// Names the documents shown and holds no file open.
class QtViewer final : public Viewer
{
public:
    explicit QtViewer(const Dateien& dateien);

    bool zeige(Ansicht ansicht, std::string_view filename) override;
    void leere(Ansicht ansicht) override;

    // Belongs to the page that takes it into its layout.
    QWidget& platz(Ansicht ansicht);

private:
    void setze(Ansicht ansicht, std::string_view filename);

    const Dateien& dateien_;
    std::array<QPointer<Dokumentbild>, ANZAHL_ANSICHTEN> plaetze_;
};

} // namespace quelvarn
