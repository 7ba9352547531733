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
class Hauptwertrahmen;
class KurzLabel;
class Merkmalbaum;
class Strukturbereich;
class Wertekombo;

// Tab 1 of the filter page: the tree of the structure features, Material and Firma of the branch, main values.
class Strukturreiter : public QWidget
{
    Q_OBJECT

public:
    explicit Strukturreiter(FilterPage& modell);

    void zeigen();

private:
    QWidget* neuerBaum();
    QWidget* neuesMaterialFirma();
    QWidget* neueVorlage();
    void knotenGewaehlt(const QModelIndex& stelle);
    void zeigeBaum();
    void zeigeMaterialFirma();

    FilterPage& modell_;
    Strukturbereich& struktur_;
    QGroupBox* FrmTreeViemerk_;
    QTreeView* TreeViewStrukMerk_;
    Merkmalbaum* knoten_;
    KurzLabel* statuszeile_;
    std::optional<std::vector<std::string>> gezeigterPfad_; // None: the mark must be set again.
    QGroupBox* FrmMarterialFirma_;
    Wertekombo* CbMaterialMW_;
    Wertekombo* CbFirmaMW_;
    QLabel* LblMaterialMW_;
    QLabel* LblFirmaMW_;
    QLabel* LblAnzMaterialMW_;
    QLabel* LblAnzFirmaMW_;
    Hauptwertrahmen* FrmHWag_;
    KurzLabel* TxtPfadDateiVorlage_;
};

} // namespace quelvarn
