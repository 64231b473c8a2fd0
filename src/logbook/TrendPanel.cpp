#include "logbook/TrendPanel.h"

#include "flight/StatisticsWords.h"
#include "logbook/FlightListModel.h"
#include "logbook/WidgetTrend.h"
#include "widgets/DataTableView.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

QStringList figureWords()
{
    return {TrendPanel::tr("Time mean when steady"), TrendPanel::tr("Maximum"),
            TrendPanel::tr("Seconds above WARNING"), TrendPanel::tr("Times out of range")};
}

TrendPanel::TrendPanel(QWidget* parent)
    : QWidget(parent), mFigure(new QComboBox), mFilter(new QLineEdit), mSummary(new QLabel),
      mTable(new DataTableView), mTitle(new QLabel), mTrend(new WidgetTrend)
{
    constexpr int ListWidth = 400;
    auto* split = new QSplitter;
    split->addWidget(createList());
    split->addWidget(createPicture());
    split->setSizes({ListWidth, 3 * ListWidth / 2});
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(split);
    connect(mTrend, &WidgetTrend::flightChosen, this, &TrendPanel::flightChosen);
    connect(mTrend, &WidgetTrend::flightWanted, this, &TrendPanel::flightWanted);
    clear();
}

QWidget* TrendPanel::createList()
{
    mFigure->setObjectName("figure");
    mFigure->addItems(figureWords());
    mFigure->setToolTip(tr("What is compared from flight to flight"));
    mFigure->setAccessibleName(tr("Figure"));
    mFilter->setObjectName("parameterFilter");
    mFilter->setPlaceholderText(tr("Filter"));
    mFilter->setToolTip(tr("Show only parameters that hold this text"));
    mFilter->setAccessibleName(tr("Filter of the parameters"));
    mFilter->setClearButtonEnabled(true);
    mSummary->setObjectName("trendSummary");
    for (QLabel* label : {mSummary, mTitle}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        // A name that can't be broken must not widen the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    mTable->setObjectName("parameterTrends");
    mTable->setAccessibleName(tr("Parameters"));
    mTable->setModel(&mModel);
    mTable->verticalHeader()->hide();
    mTable->setStretched(TrendListModel::NameColumn);
    mTable->horizontalHeader()->setSortIndicator(TrendListModel::AwayColumn, Qt::DescendingOrder);
    mTable->setSortingEnabled(true);
    mTable->fitColumns();
    auto* line = new QHBoxLayout;
    line->addWidget(mFigure);
    line->addWidget(mFilter, 1);
    auto* list = new QWidget;
    auto* layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addWidget(mSummary);
    layout->addWidget(mTable, 1);
    connect(mFigure, &QComboBox::activated, this, &TrendPanel::figureChanged);
    connect(mFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        mModel.setFilter(text);
        showParameter(std::max(0, mModel.rowOf(mParameter)));
    });
    connect(mTable, &DataTableView::rowPicked, this, [this](int row) {
        mParameter = mModel.trend(row).fullName();
        showTrend(row); // the list stays under the mouse
    });
    connect(mTable->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            [this] { showParameter(std::max(0, mModel.rowOf(mParameter))); });
    return list;
}

QWidget* TrendPanel::createPicture()
{
    mTitle->setObjectName("trendTitle");
    auto* picture = new QWidget;
    auto* layout = new QVBoxLayout(picture);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mTitle);
    layout->addWidget(mTrend, 1);
    return picture;
}

Figure TrendPanel::figure() const
{
    return static_cast<Figure>(mFigure->currentIndex());
}

void TrendPanel::clear()
{
    setTrends({{}, figure(), {}, {}});
    mTable->setEmptyText({}); // nothing was looked for
}

/// The parameter that the user chose stays; without one the first of the list is shown.
void TrendPanel::setTrends(const EngineTrends& trends)
{
    mNotes = trends.notes;
    mParameter = mAircraft == trends.aircraft ? mParameter : QString();
    mAircraft = trends.aircraft;
    mModel.setTrends(trends.trends);
    mTable->setEmptyText(trends.trends.empty() ? whyEmpty() : tr("No parameter holds this text."));
    mSummary->setText(summary());
    showParameter(std::max(0, mModel.rowOf(mParameter)));
}

QString TrendPanel::whyEmpty() const
{
    return figure() == Figure::SteadyMean
               ? tr("No flight of this engine has a steady stretch of three minutes. What is "
                    "steady "
                    "is told by parameters that the profile marks with \"steady\".")
               : tr("No flight of this engine has this figure.");
}

QString TrendPanel::summary() const
{
    if (mModel.trends().empty()) {
        return {};
    }
    const int marked = mModel.markedNow();
    const QString engine = engineWords(mAircraft);
    const bool hasBand = std::ranges::any_of(mModel.trends(), [](const ParameterTrend& trend) {
        const TrendPoint* latest = latestOf(trend);
        return latest != nullptr && latest->median.has_value();
    });
    if (!hasBand) {
        return tr("Engine %1: a band needs five other flights since the last maintenance.")
            .arg(engine);
    }
    return tr("Engine %1: %2 of %3 parameters leave their band in their latest flight.")
        .arg(engine, QString::number(marked), QString::number(mModel.trends().size()));
}

void TrendPanel::showParameter(int row)
{
    mTable->showRow(row);
    showTrend(row);
}

void TrendPanel::showTrend(int row)
{
    if (row >= mModel.rowCount()) {
        mTrend->setTrend({}, {});
        mTitle->clear();
        return;
    }
    const ParameterTrend& trend = mModel.trend(row);
    mTrend->setTrend(trend, mNotes);
    const auto marked = std::ranges::count(trend.points, true, &TrendPoint::isMarked);
    const auto known = std::ranges::count_if(
        trend.points, [](const TrendPoint& point) { return point.value.has_value(); });
    const QString unit = trend.unit.isEmpty() ? QString() : " [" + trend.unit + "]";
    mTitle->setText(tr("%1%2, %3: %4 of %5 flights leave the band")
                        .arg(trend.fullName(), unit, mFigure->currentText(),
                             QString::number(marked), QString::number(known)));
}

void TrendPanel::chooseFlight(const QString& flight)
{
    mTrend->choose(flight);
}

} // namespace TARN
