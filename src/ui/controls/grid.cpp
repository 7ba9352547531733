#include "ui/controls/grid.h"

#include "database/recordset.h"
#include "ui/controls/column_widths.h"
#include "ui/controls/grid_head.h"
#include "ui/text.h"
#include "ui/theme/style.h"
#include "ui/value_text.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QToolTip>

namespace quelvarn {

namespace {

// Draws a cell as the style would, but lays its text out once only: moving through rows is mostly drawing cells.
// Marks the row that the keyboard moves, and shows the whole text in the tool tip where it had to be shortened.
class Zellenzeichner : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& wert, const QLocale& sprache) const override
    {
        return oneLine(QStyledItemDelegate::displayText(wert, sprache));
    }

    bool helpEvent(QHelpEvent* ereignis, QAbstractItemView* ansicht, const QStyleOptionViewItem& option,
                   const QModelIndex& stelle) override
    {
        if (ereignis->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(ereignis, ansicht, option, stelle);
        const bool gekuerzt = sizeHint(option, stelle).width() > ansicht->visualRect(stelle).width();
        QToolTip::showText(ereignis->globalPos(), gekuerzt ? asTip(stelle.data().toString()) : QString(), ansicht);
        return true;
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& stelle) const override
    {
        QStyleOptionViewItem zelle = option;
        initStyleOption(&zelle, stelle);
        const QStyle& stil = *zelle.widget->style();
        stil.drawPrimitive(QStyle::PE_PanelItemViewItem, &zelle, painter, zelle.widget);
        zeichneText(*painter, zelle, stil);
        if (stelle.column() == 0 && option.state.testFlag(QStyle::State_Selected) && option.widget->hasFocus())
            zeichneFokusmarke(*painter, option.rect);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& stelle) const override
    {
        QStyledItemDelegate::initStyleOption(option, stelle);
        option->state.setFlag(QStyle::State_HasFocus, false); // The whole row is marked instead.
    }

private:
    static void zeichneText(QPainter& painter, const QStyleOptionViewItem& zelle, const QStyle& stil)
    {
        const int rand = stil.pixelMetric(QStyle::PM_FocusFrameHMargin, &zelle, zelle.widget) + 1;
        const QRect platz = zelle.rect.adjusted(rand, 0, -rand, 0);
        const bool gewaehlt = zelle.state.testFlag(QStyle::State_Selected);
        const auto gruppe = zelle.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        painter.setPen(zelle.palette.color(zelle.state.testFlag(QStyle::State_Enabled) ? gruppe : QPalette::Disabled,
                                           gewaehlt ? QPalette::HighlightedText : QPalette::Text));
        QTextLayout satz(zelle.text, zelle.font);
        const QSizeF groesse = setze(satz);
        if (groesse.width() > platz.width()) {
            satz.setText(zelle.fontMetrics.elidedText(zelle.text, zelle.textElideMode, platz.width()));
            setze(satz);
        }
        satz.draw(&painter, QPointF(platz.left(), platz.top() + (platz.height() - groesse.height()) / 2));
    }

    // One line, as long as it needs.
    static QSizeF setze(QTextLayout& satz)
    {
        satz.setCacheEnabled(true);
        satz.beginLayout();
        QTextLine zeile = satz.createLine();
        satz.endLayout();
        return {zeile.naturalTextWidth(), zeile.height()};
    }
};

} // namespace

Gitter::Gitter(std::string_view name, std::vector<Gitterspalte> spalten, std::vector<int> anteile)
    : modell_(new Gittermodell(std::move(spalten))), anteile_(std::move(anteile))
{
    setObjectName(zuQt(name));
    modell_->setParent(this);
    setModel(modell_);
    stelleGitterEin(*this);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int spalte) {
        const bool letzte = spalte == modell_->columnCount() - 1; // It follows the others.
        vonHand_ = vonHand_ || (!verteilt_ && !letzte && isVisible());
    });
}

void stelleGitterEin(QTableView& gitter)
{
    gitter.setItemDelegate(new Zellenzeichner(&gitter));
    gitter.setHorizontalHeader(new GridHead(&gitter));
    gitter.setSelectionBehavior(QTableView::SelectRows);
    gitter.setSelectionMode(QTableView::SingleSelection);
    gitter.setEditTriggers(QTableView::NoEditTriggers);
    gitter.setAlternatingRowColors(true);
    gitter.setShowGrid(false);
    gitter.setWordWrap(false);
    gitter.setTabKeyNavigation(false);
    gitter.setCornerButtonEnabled(false);
    gitter.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    gitter.verticalHeader()->hide();
    gitter.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    gitter.verticalHeader()->setDefaultSectionSize(gitter.fontMetrics().height() + 5);
}

void Gitter::zeige(const Recordset* zeilen, unsigned fassung)
{
    still([&] { modell_->zeige(zeilen, fassung); });
    if (zeilen == nullptr || zeilen->Bof() || zeilen->Eof())
        return;
    const int zeile = static_cast<int>(zeilen->AbsolutePosition());
    if (zeile != currentIndex().row())
        zeigeGewaehlt(modell_->index(zeile, 0));
}

void Gitter::resizeEvent(QResizeEvent* ereignis)
{
    QTableView::resizeEvent(ereignis);
    if (!vonHand_ && ereignis->size().width() != ereignis->oldSize().width())
        verteileBreiten();
}

void Gitter::verteileBreiten()
{
    verteilt_ = true;
    const auto& kopf = static_cast<const GridHead&>(*horizontalHeader());
    std::vector<int> least;
    for (int i = 0; i < modell_->columnCount(); ++i)
        least.push_back(kopf.leastWidth(i));
    const std::vector<int> breiten = columnWidths(viewport()->width(), anteile_, least);
    // The head stretches the last one too, but not as long as the columns before were too wide.
    for (std::size_t i = 0; i < breiten.size(); ++i)
        setColumnWidth(static_cast<int>(i), breiten[i]);
    verteilt_ = false;
}

} // namespace quelvarn
