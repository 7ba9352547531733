#pragma once

#include "register/general_page.h"
#include "register/info_pages.h"

#include <QWidget>

#include <array>
#include <functional>
#include <string_view>
#include <vector>

class QAction;
class QCheckBox;
class QGridLayout;
class QLabel;
class QToolBar;

namespace quelvarn {

class Grid;
class RelationActions;
class StatusDot;
class StatusCaption;
class RelationPage;
struct RelationKind;

// The names of the controls of a page, and what stands on them.
struct RelationNames
{
    InfoPageId page;
    std::string_view frame; // A frame of its own inside FrmInfoDoku, "" for none.
    std::string_view grid;
    std::string_view bar;
    std::string_view tipView;
    std::string_view tipSwitch;
    std::string_view preview;
    std::string_view fields; // The array of labels with the details of a row.
    int graphic;             // Index in ChViewGrafik.
};

extern const std::array<RelationNames, 6> RELATION_NAMES;

// A page of composition or where-used: grid, tool bar, details of the row or its preview.
class RelationView : public QWidget
{
    Q_OBJECT

public:
    // `preview` is the place of the page's viewer.
    RelationView(RelationPage& model, RelationActions& actions, const RelationNames& names, QWidget& preview);

    void refresh();
    // The page has led to another document.
    std::function<void()> leave;

private:
    struct ShownValue
    {
        QLabel* label;
        std::string GeneralPage::*field;
    };

    void buildGrid();
    QWidget* newBar();
    QWidget* newFields();
    void buildStatus(QGridLayout& grid, int row);
    QAction* addButton(std::string_view key, std::string_view caption, std::string_view tip,
                       const std::function<void()>& operation);
    void perform(const std::function<void()>& operation);
    void showDetails();
    bool isInFront() const;

    RelationPage& model_;
    RelationActions& actions_;
    const RelationNames& names_;
    const RelationKind& kind_;
    Grid* grid_;
    QToolBar* bar_;
    QAction* openInViewer_ = nullptr;
    std::string_view character_; // On "Anschauen" now.
    QCheckBox* ChViewGrafik_;
    QLabel* empty_;
    std::vector<ShownValue> values_;
    StatusDot* point_ = nullptr;
    StatusCaption* statusName_ = nullptr;
    QWidget* fields_ = nullptr;
    QWidget* preview_;
};

} // namespace quelvarn
