#include "logbook/WidgetTrend.h"

#include "flight/StatisticsWords.h"
#include "logbook/FlightListModel.h"
#include "logbook/TrendDrawing.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFocusRect>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace TARN {

namespace {

std::ptrdiff_t placeOf(const std::vector<TrendPoint>& points, const QString& flight)
{
    const auto found = std::ranges::find(points, flight, &TrendPoint::flight);
    return found == points.end() ? -1 : found - points.begin();
}

} // namespace

WidgetTrend::WidgetTrend(QWidget* parent) : QWidget(parent)
{
    setObjectName("trend");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Trend"));
}

QSize WidgetTrend::minimumSizeHint() const
{
    return {240, 120};
}

QSize WidgetTrend::sizeHint() const
{
    return {640, 300};
}

void WidgetTrend::setTrend(const ParameterTrend& trend, const std::vector<MaintenanceMark>& notes)
{
    mTrend = trend;
    mNotes = notes;
    setAccessibleDescription(mTrend.fullName());
    update();
}

void WidgetTrend::choose(const QString& flight)
{
    mChosen = flight;
    update();
}

TrendLayout WidgetTrend::layoutNow() const
{
    return {mTrend, QSizeF(size()), QFontMetricsF(font()).height(),
            QFontMetricsF(font()).horizontalAdvance('0')};
}

void WidgetTrend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const TrendColors colors = TrendColors::of(palette());
    if (mTrend.points.empty()) {
        painter.fillRect(rect(), colors.back);
        return;
    }
    const TrendLayout layout = layoutNow();
    const std::ptrdiff_t chosen = placeOf(mTrend.points, mChosen);
    TrendDrawing(mTrend, mNotes, layout, colors)
        .draw(painter, chosen >= 0 ? std::optional<std::size_t>(chosen) : std::nullopt);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

QString WidgetTrend::tipOf(const TrendPoint& point) const
{
    const QString unit = mTrend.unit.isEmpty() ? QString() : " " + mTrend.unit;
    QStringList lines = {dateWords(point.start) + " UTC",
                         point.value ? numberWords(*point.value) + unit : tr("no value")};
    if (point.median) {
        lines += tr("Median of the others %1, sigma %2")
                     .arg(numberWords(*point.median) + unit, numberWords(*point.sigma, 3));
    }
    if (point.isMarked) {
        lines += tr("It leaves the band.");
    }
    lines += tr("Click: open the flight; with Shift: as the reference.");
    return lines.join('\n');
}

bool WidgetTrend::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const auto point = layoutNow().pointAt(help->pos())) {
        QToolTip::showText(help->globalPos(), tipOf(mTrend.points[*point]), this);
    } else {
        QToolTip::hideText();
    }
    return true;
}

void WidgetTrend::mouseMoveEvent(QMouseEvent* event)
{
    setCursor(layoutNow().pointAt(event->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void WidgetTrend::mouseReleaseEvent(QMouseEvent* event)
{
    const auto point = layoutNow().pointAt(event->position());
    if (event->button() == Qt::LeftButton && point) {
        chooseAt(static_cast<std::ptrdiff_t>(*point));
        Q_EMIT flightWanted(mChosen, event->modifiers().testFlag(Qt::ShiftModifier));
    }
}

void WidgetTrend::chooseAt(std::ptrdiff_t point)
{
    if (mTrend.points.empty()) {
        return;
    }
    const auto last = static_cast<std::ptrdiff_t>(mTrend.points.size()) - 1;
    choose(
        mTrend.points[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(point, 0, last))].flight);
    Q_EMIT flightChosen(mChosen);
}

void WidgetTrend::keyPressEvent(QKeyEvent* event)
{
    const std::ptrdiff_t at = placeOf(mTrend.points, mChosen);
    switch (event->key()) {
    case Qt::Key_Left:
        chooseAt(at - 1);
        break;
    case Qt::Key_Right:
        chooseAt(at + 1);
        break;
    case Qt::Key_Home:
        chooseAt(0);
        break;
    case Qt::Key_End:
        chooseAt(static_cast<std::ptrdiff_t>(mTrend.points.size()));
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (at >= 0) {
            Q_EMIT flightWanted(mChosen, event->modifiers().testFlag(Qt::ShiftModifier));
        }
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace TARN
