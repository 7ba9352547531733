#pragma once

#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QGroupBox;
class QLabel;
class QTreeView;

namespace quelvarn {

class FilterPage;
class MainValueFrame;
class ShortLabel;
class FeatureTree;
class StructureSection;
class ValueCombo;

// Tab 1 of the filter page: the tree of the structure features, Material and Firma of the branch, main values.
class StructureTab : public QWidget
{
    Q_OBJECT

public:
    explicit StructureTab(FilterPage& model);

    void refresh();

private:
    QWidget* newTree();
    QWidget* newMaterialFirma();
    QWidget* newTemplate();
    void nodeChosen(const QModelIndex& position);
    void showTree();
    void showMaterialCompany();

    FilterPage& model_;
    StructureSection& structure_;
    QGroupBox* FrmTreeViemerk_;
    QTreeView* TreeViewStrukMerk_;
    FeatureTree* node_;
    ShortLabel* statusRow_;
    std::optional<std::vector<std::string>> shownPath_; // None: the mark must be set again.
    QGroupBox* FrmMarterialFirma_;
    ValueCombo* CbMaterialMW_;
    ValueCombo* CbFirmaMW_;
    QLabel* LblMaterialMW_;
    QLabel* LblFirmaMW_;
    QLabel* LblAnzMaterialMW_;
    QLabel* LblAnzFirmaMW_;
    MainValueFrame* FrmHWag_;
    ShortLabel* TxtPfadDateiVorlage_;
};

} // namespace quelvarn
