#pragma once

#include <QWidget>

#include <functional>
#include <map>
#include <vector>

class QLabel;
class QStackedWidget;

namespace quelvarn {

class GeneralView;
class FileView;
class InfoPanel;
class RelationActions;
class ShortLabel;
class ListPage;
class LongText;
class QtViewer;
class TiffPage;
class RelationView;
enum class InfoPageId : int;

// The right-hand side of the document page: one information page at a time under the head of the document type.
class InfoArea : public QWidget
{
    Q_OBJECT

public:
    InfoArea(InfoPanel& model, RelationActions& relationActions, QtViewer& viewer);

    void refresh();
    // A page has led to a document of a table: the keyboard goes there.
    std::function<void()> toTable;

private:
    QWidget* newHeading();
    QWidget* newKeywordsPage();
    void buildPages(RelationActions& relationActions, QtViewer& viewer);
    void addPage(InfoPageId page, QWidget* content);
    void showHeading();

    InfoPanel& model_;
    ShortLabel* heading_;
    QLabel* LblNichtVorhanden_;
    QLabel* LblAchtungRev_;
    QStackedWidget* pages_;
    std::map<InfoPageId, QWidget*> page_;
    QWidget* empty_;
    GeneralView* general_;
    FileView* file_;
    TiffPage* tiff_;
    std::vector<ListPage*> lists_;
    std::vector<RelationView*> relation_;
    LongText* TextKeywords_;
    LongText* TextComments_;
};

} // namespace quelvarn
