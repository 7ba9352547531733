#include "ui/filter_page/running_filter.h"

#include "filter/filter_page.h"
#include "ui/controls/filter_value_grid.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/filter_page/main_value_model.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace quelvarn {

namespace {

constexpr int WIDTH_MAIN_VALUES = 210;
constexpr int WIDTH_NUMBER = 26;

} // namespace

RunningFilter::RunningFilter(FilterPage& model)
    : model_(model), LblKopfFilterWerte_(caption({}, TextRole::Heading, QStringLiteral("LblKopfFilterWerte"))),
      CmChangeStar_(new QPushButton(QStringLiteral("Sterne ergän&zen"))),
      DataGridFilterEigenMerk_(new ValueTable("DataGridFilterEigenMerk")),
      DataGridStatus_(new ValueTable("DataGridStatus")), DGFilternWerte_(new QTableView),
      mainValues_(new MainValueModel(this))
{
    buildSteps();
    buildMainValues();
    auto* steps = new QFrame;
    steps->setProperty("framed", true);
    auto* status = new QHBoxLayout;
    status->setContentsMargins(WIDTH_NUMBER, 0, 0, 0); // Below the names of the steps.
    status->addWidget(DataGridStatus_);
    auto* vertical = new QVBoxLayout(steps);
    vertical->setContentsMargins(1, 1, 1, 1);
    vertical->setSpacing(0);
    vertical->addWidget(newHeading());
    vertical->addWidget(DataGridFilterEigenMerk_, 1);
    vertical->addWidget(separatorLine());
    vertical->addLayout(status);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(steps, 1);
    layout->addWidget(DGFilternWerte_);
}

QWidget* RunningFilter::newHeading()
{
    auto* heading = new Strip(Strip::Kind::HeadingRow, "KopfFilterWerte");
    heading->layoutRow().setContentsMargins(2, 1, 2, 1);
    CmChangeStar_->setObjectName(QStringLiteral("CmChangeStar"));
    CmChangeStar_->setToolTip(QStringLiteral("Geänderte Werte mit * am Ende in den Filter übernehmen"));
    CmChangeStar_->setProperty("flat", true);
    connect(CmChangeStar_, &QPushButton::clicked, this, guardedSlot([this] {
                takeInput();
                model_.starsComplete();
            }));
    heading->layoutRow().addWidget(LblKopfFilterWerte_, 1);
    heading->layoutRow().addWidget(CmChangeStar_);
    return heading;
}

void RunningFilter::buildSteps()
{
    DataGridFilterEigenMerk_->rows().edited = [this](std::size_t row, const std::string& value) {
        model_.valueChanged(row, value);
    };
    DataGridFilterEigenMerk_->verticalHeader()->show();
    DataGridFilterEigenMerk_->installEventFilter(this);
    for (ValueTable* table : {DataGridFilterEigenMerk_, DataGridStatus_})
        table->horizontalHeader()->hide();
    DataGridFilterEigenMerk_->verticalHeader()->setFixedWidth(WIDTH_NUMBER);
    DataGridStatus_->setFixedHeight(DataGridStatus_->verticalHeader()->defaultSectionSize());
    DataGridStatus_->setFocusPolicy(Qt::NoFocus);
    DataGridStatus_->setSelectionMode(QAbstractItemView::NoSelection);
    DataGridStatus_->setAccessibleName(QStringLiteral("Status"));
}

void RunningFilter::buildMainValues()
{
    DGFilternWerte_->setObjectName(QStringLiteral("DGFilternWerte"));
    DGFilternWerte_->setAccessibleName(QStringLiteral("Grenzen der Hauptwerte"));
    DGFilternWerte_->setProperty("framed", true);
    DGFilternWerte_->setModel(mainValues_);
    configureGrid(*DGFilternWerte_);
    DGFilternWerte_->setFixedWidth(WIDTH_MAIN_VALUES);
    DGFilternWerte_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    DGFilternWerte_->verticalHeader()->setMinimumSectionSize(DGFilternWerte_->fontMetrics().height());
    DGFilternWerte_->verticalHeader()->setDefaultSectionSize(DGFilternWerte_->fontMetrics().height() + 2);
    DGFilternWerte_->setColumnWidth(0, WIDTH_MAIN_VALUES / 5);
    DGFilternWerte_->setColumnWidth(1, WIDTH_MAIN_VALUES * 2 / 5);
}

// Enter runs the filter; F2 and typing edit a value.
bool RunningFilter::eventFilter(QObject* receiver, QEvent* event)
{
    if (receiver == DataGridFilterEigenMerk_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // The key that ends the editing of a value comes here as well, before the value is taken.
        const bool writes = DataGridFilterEigenMerk_->isPersistentEditorOpen(DataGridFilterEigenMerk_->currentIndex());
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && filter && !writes) {
            filter();
            return true;
        }
    }
    return QWidget::eventFilter(receiver, event);
}

void RunningFilter::takeInput()
{
    DataGridFilterEigenMerk_->takeInput();
}

void RunningFilter::refresh()
{
    const FilterContext& context = model_.context();
    LblKopfFilterWerte_->setText(toQt(model_.headingFilterValues()));
    CmChangeStar_->setEnabled(!context.FilterWerteTabelle().empty());
    DataGridFilterEigenMerk_->rows().display(context.FilterWerteTabelle());
    showStatus();
    mainValues_->display(context.state().HauptwertBereich);
    DGFilternWerte_->setVisible(context.section() == FilterSection::Structure);
}

void RunningFilter::showStatus()
{
    const std::string& shortText = model_.context().filter.status.shortText;
    DataGridStatus_->rows().display(shortText.empty() ? std::vector<FilterRow>{}
                                                      : std::vector<FilterRow>{{"", "Status", shortText}});
}

} // namespace quelvarn
