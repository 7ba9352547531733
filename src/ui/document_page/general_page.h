#pragma once

#include <QScrollArea>

#include <vector>

class QGridLayout;
class QLabel;

namespace quelvarn {

class StatusDot;
class StatusCaption;
struct GeneralPage;

// The general page (FrmInfoDoku 1): captions and values of the document. Its labels are the array LblInfo.
class GeneralView : public QScrollArea
{
    Q_OBJECT

public:
    GeneralView();

    void refresh(const GeneralPage& page);

private:
    struct ShownValue
    {
        QLabel* label;
        std::string GeneralPage::*field;
    };

    void buildRow(QGridLayout& grid, int row, int index, const QString& heading, std::string GeneralPage::*field);
    void buildStatus(QGridLayout& grid, int row);
    void buildChange(QGridLayout& grid, int row, int index, const QString& heading, std::string GeneralPage::*date,
                     std::string GeneralPage::*name);
    void buildRelation(QGridLayout& grid, int row);
    void showRelation(const GeneralPage& page);
    QLabel* newHeading(int index, const QString& text);
    QLabel* newValue(int index, std::string GeneralPage::*field, bool wrap = false);

    std::vector<ShownValue> values_;
    StatusDot* point_;
    StatusCaption* statusName_;
    QWidget* content_;
    QWidget* relation_ = nullptr; // The line over where-used.
};

} // namespace quelvarn
