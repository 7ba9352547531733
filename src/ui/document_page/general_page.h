#pragma once

#include <QScrollArea>

#include <vector>

class QGridLayout;
class QLabel;

namespace quelvarn {

class Statuspunkt;
class Statustext;
struct AllgemeineSeite;

// The general page (FrmInfoDoku 1): captions and values of the document. Its labels are the array LblInfo.
class Allgemeinansicht : public QScrollArea
{
    Q_OBJECT

public:
    Allgemeinansicht();

    void zeigen(const AllgemeineSeite& seite);

private:
    struct Wert
    {
        QLabel* label;
        std::string AllgemeineSeite::*feld;
    };

    void baueZeile(QGridLayout& gitter, int zeile, int index, const QString& kopf, std::string AllgemeineSeite::*feld);
    void baueStatus(QGridLayout& gitter, int zeile);
    void baueAenderung(QGridLayout& gitter, int zeile, int index, const QString& kopf,
                       std::string AllgemeineSeite::*datum, std::string AllgemeineSeite::*name);
    void baueVerwendung(QGridLayout& gitter, int zeile);
    void zeigeVerwendung(const AllgemeineSeite& seite);
    QLabel* neuerKopf(int index, const QString& text);
    QLabel* neuerWert(int index, std::string AllgemeineSeite::*feld, bool umbrechen = false);

    std::vector<Wert> werte_;
    Statuspunkt* punkt_;
    Statustext* statusName_;
    QWidget* inhalt_;
    QWidget* verwendung_ = nullptr; // The line over where-used.
};

} // namespace quelvarn
