#include "ui/document_page/table_view.h"

#include "program/program.h"
#include "ui/controls/grid.h"
#include "ui/document_page/tree_model.h"
#include "ui/text.h"

#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

const std::vector<Gitterspalte> SPALTEN{{"Dokumentname", "DokuBez"},
                                        {"Revision", "RevBez"},
                                        {"Dateiname", "Dateiname"},
                                        {"Pfad- und Dateiname", "filename"}};
const std::vector<int> ANTEILE{26, 11, 24, 39};

} // namespace

Tabellenansicht::Tabellenansicht(Program& program, int tab)
    : program_(program), tab_(tab),
      gitter_(new Gitter(DOKUTYPEN[static_cast<std::size_t>(tab)].grid, SPALTEN, ANTEILE)),
      baum_(new Wahlansicht<QTreeView>), knoten_(new Baummodell(this))
{
    baueGitter();
    baueBaum();
    auto* teiler = new QSplitter(Qt::Vertical);
    teiler->setObjectName(QStringLiteral("TeilerGitterBaum"));
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(gitter_);
    teiler->addWidget(baum_);
    teiler->setStretchFactor(0, 5);
    teiler->setStretchFactor(1, 3);
    teiler->setSizes({285, 190});
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->addWidget(teiler);
}

void Tabellenansicht::baueGitter()
{
    gitter_->setAccessibleName(QStringLiteral("Dokumente"));
    gitter_->gewaehlt = [this](const QModelIndex& stelle) {
        program_.tabs.chooseRow(static_cast<std::size_t>(stelle.row()));
    };
    gitter_->geoeffnet = [this](const QModelIndex&) {
        if (geoeffnet)
            geoeffnet();
    };
}

void Tabellenansicht::baueBaum()
{
    baum_->setObjectName(zuQt(DOKUTYPEN[static_cast<std::size_t>(tab_)].baum));
    baum_->setAccessibleName(QStringLiteral("Eigenschaften"));
    baum_->setModel(knoten_);
    baum_->setHeaderHidden(true);
    baum_->setUniformRowHeights(true);
    baum_->setExpandsOnDoubleClick(false);
    baum_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    baum_->gewaehlt = [this](const QModelIndex& stelle) { program_.info.chooseNode(ausQt(stelle.data().toString())); };
    baum_->geoeffnet = baum_->gewaehlt;
    connect(baum_, &QTreeView::expanded, this, bewacht([this](const QModelIndex&) { program_.tree.unfold(); }));
    connect(baum_, &QTreeView::collapsed, this, bewacht([this](const QModelIndex&) { program_.tree.fold(); }));
}

void Tabellenansicht::zeigen()
{
    const DocumentTable& table = program_.tables[tab_];
    gitter_->zeige(table.visible().offen() ? &table.visible() : nullptr, table.generation());
    zeigeBaum();
}

void Tabellenansicht::zeigeBaum()
{
    const Eigenschaftsbaum& baum = program_.tree.tree(tab_);
    const QSignalBlocker ohneAufklappen(baum_);
    baum_->still([&] { knoten_->zeige(baum.wurzeln); });
    for (int i = 0; i < knoten_->rowCount(); ++i) {
        const QModelIndex stelle = knoten_->index(i, 0);
        const bool offen = baum.wurzeln[static_cast<std::size_t>(i)].offen;
        if (baum_->isExpanded(stelle) != offen)
            baum_->setExpanded(stelle, offen);
    }
    baum_->zeigeGewaehlt(knoten_->finde(baum.gewaehlt));
}

} // namespace quelvarn
