#pragma once

#include <QFrame>

#include <array>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quelvarn {

class LeftBar;

// The panel that finds rows, or narrows the table, by a piece of text (FrmSuchenFiltern).
class SearchPanel : public QFrame
{
    Q_OBJECT

public:
    explicit SearchPanel(LeftBar& model);

    void refresh();
    // Where the next text is typed.
    void takeFocus();
    void searchOn();

private:
    QComboBox* newCombSuchStr();
    QLineEdit* newTextDocuBez();
    QCheckBox* newChDynSuchen();
    QPushButton* newButton(const char* name, const QString& text, void (SearchPanel::*act)());
    void buildOptions(QHBoxLayout& layoutRow);
    void search();
    void filter();
    void searchText(const QString& text);
    void textTyped(const QString& text);
    void showSearchTexts();
    void showStep();

    LeftBar& model_;
    QButtonGroup* fields_;
    QButtonGroup* method_;
    QComboBox* CombSuchStr_;
    QLineEdit* TextDocuBez_;
    QCheckBox* ChDynSuchen_;
    QPushButton* CmDokuDateiFiltern_ = nullptr;
    QLabel* LblFilterStep1_;
};

} // namespace quelvarn
