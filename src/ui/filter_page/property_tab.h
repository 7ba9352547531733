#pragma once

#include "filter/property_section.h"

#include <QWidget>

#include <array>
#include <functional>

class QAbstractButton;
class QCheckBox;
class QGridLayout;
class QLabel;

namespace quelvarn {

class FilterPage;
class Kalender;
class KurzLabel;
class Wertekombo;

// Tab 0 of the filter page: twelve properties, statuses, dates.
class Eigenschaftsreiter : public QWidget
{
    Q_OBJECT

public:
    explicit Eigenschaftsreiter(FilterPage& modell);

    void zeigen();
    // The calendar goes to today's month.
    void zeigeHeute();
    // A day was picked: the focus goes to the tabs.
    std::function<void()> datumUebernommen;

private:
    QWidget* neueEigenschaften();
    void neueEigenschaft(int index, QGridLayout& gitter);
    QWidget* neueStati();
    QWidget* neueDatumsart();
    QWidget* neueBegrenzung();
    QWidget* neuerKalender();
    void datumGewaehlt(const QDate& tag);
    void zeigeEigenschaften();
    void zeigeStati();
    void zeigeDatum();

    FilterPage& modell_;
    std::array<KurzLabel*, ANZAHL_EIGENSCHAFTEN> captions_{};
    std::array<Wertekombo*, ANZAHL_EIGENSCHAFTEN> CbEigen_{};
    std::array<QLabel*, ANZAHL_EIGENSCHAFTEN> LblAnzEigen_{};
    std::array<QCheckBox*, ANZAHL_STATUS> ChFilterStat_{};
    QLabel* legende_ = nullptr;
    std::array<QAbstractButton*, 2> OpDat_{};
    std::array<QAbstractButton*, 3> OpDatBegr_{};
    Kalender* MonthViewEigen_ = nullptr;
};

} // namespace quelvarn
