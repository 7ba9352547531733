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
class Calendar;
class ShortLabel;
class ValueCombo;

// Tab 0 of the filter page: twelve properties, statuses, dates.
class PropertyTab : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyTab(FilterPage& model);

    void refresh();
    // The calendar goes to today's month.
    void showToday();
    // A day was picked: the focus goes to the tabs.
    std::function<void()> dateAdopted;

private:
    QWidget* newProperties();
    void newProperty(int index, QGridLayout& grid);
    QWidget* newStatuses();
    QWidget* newDateKind();
    QWidget* newBound();
    QWidget* newCalendar();
    void dateChosen(const QDate& day);
    void showProperties();
    void showStatuses();
    void showDate();

    FilterPage& model_;
    std::array<ShortLabel*, PROPERTY_COUNT> captions_{};
    std::array<ValueCombo*, PROPERTY_COUNT> CbEigen_{};
    std::array<QLabel*, PROPERTY_COUNT> LblAnzEigen_{};
    std::array<QCheckBox*, STATUS_COUNT> ChFilterStat_{};
    QLabel* legend_ = nullptr;
    std::array<QAbstractButton*, 2> OpDat_{};
    std::array<QAbstractButton*, 3> OpDatBegr_{};
    Calendar* MonthViewEigen_ = nullptr;
};

} // namespace quelvarn
