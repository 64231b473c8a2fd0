#include "graph/CurveFill.h"
#include "graph/CurveText.h"
#include "graph/GraphActions.h"
#include "graph/GraphCaption.h"
#include "graph/GraphPalette.h"
#include "graph/LegendGestures.h"
#include "graph/NotePlaces.h"
#include "support/FlightTest.h"
#include "support/GraphPaint.h"

using namespace TARN;

namespace {

/// A temperature that passes its warning and its limit, a state, an error matrix and a lamp.
const QByteArray Elements =
    "<EnumList><Enum name='S'><Value val='0' label='OFF'/><Value val='1' label='ON'/></Enum>"
    "<Enum name='WarningLamp'/></EnumList>"
    "<ThresholdList><Threshold name='T'><Value val='-5' color='#00ff00'/>"
    "<Value val='20' state='WARNING' color='#ffff00'/>"
    "<Value val='30' state='LIMIT' color='#ff0000'/></Threshold></ThresholdList>"
    "<Device name='D'>"
    "<Parameter name='Heat' unit='C' id='500' dataType='FLOAT' startByte='4' thresholdId='T'/>"
    "<Parameter name='State' id='501' dataType='BLONG' startByte='4' endBit='3' enumId='S'/>"
    "<Parameter name='Lamp' id='502' dataType='BLONG' startByte='4' endBit='3' "
    "enumId='WarningLamp'/><ErrorMatrix id='900' name='M'/>"
    "<Parameter name='hot' id='900' startBit='0' errorType='Warning'/>"
    "<Parameter name='dead' id='900' startBit='1' errorType='Fault'/></Device>";

const QString Samples = "500@0=10 500@1=10 500@2=25 500@3=35 500@4=25 500@5=10 500@6=10 500@10=10 "
                        "501@0=5:00000000 501@1=5:00000000 501@2=5:00000001 501@3=5:00000001 "
                        "501@4=5:00000001 501@5=5:00000000 501@6=5:00000000 501@30=5:00000001 "
                        "502@3=5:00000001 900@0=5:00000000 900@2=5:00000001 900@4=5:00000003 "
                        "900@6=5:00000000 900@10=5:00000000";

} // namespace

/// What a graph shows beside its curves.
class TestNotes : public FlightTest
{
    Q_OBJECT

private:
    /// All parameters of that flight, at an offset, 0 to 10 s in a plot of 500 pixels or so.
    void show(GraphModel& model, double offset = 0.0) const
    {
        RecordingBuilder file;
        const QString path = write("REC_8000.CAN", add(file, Samples).bytes());
        const auto flight = Flight::make(load({path}), profileOf(Elements));
        const auto parameters = Selection::all(*flight->profile()).parameters(*flight->profile());
        Progress none;
        nameCurves(model.curves(), {parameters[0], parameters[1]});
        for (const unsigned k : {0U, 1U}) {
            fillCurve(model.curves(), k, decodeCurve(flight, *parameters[k], offset, none));
        }
        model.hints().notes = {
            flight, offset,
            std::make_shared<const std::vector<Episode>>(flight->episodes(offset, none))};
        model.setDisplayMode(DisplaySplit);
        model.setGraphMode(GraphManual);
        model.window().set(0.0, 10.0);
        model.windowChanged();
    }

    static QStringList textsOf(const GraphPaint& paint)
    {
        QStringList texts;
        for (const TextLayout::Text& text : paint.texts.texts()) {
            texts += text.text;
        }
        return texts;
    }

    /// Fills of a colour as "left-right/bottom-top", times and rows from a strip's lower edge.
    static QStringList fillsOf(const GraphPaint& paint, const GraphModel& model, QRgb color)
    {
        QStringList found;
        const GraphView& view = model.layout().view();
        for (const GraphPaint::Shape& shape : paint.shapes) {
            if (shape.kind == GraphPaint::Fill && shape.color.toColor().rgb() == color) {
                const auto& at = shape.points;
                found += QString("%1-%2/%3")
                             .arg(view.viewportToX(at[0]), 0, 'f', 1)
                             .arg(view.viewportToX(at[2]), 0, 'f', 1)
                             .arg(at[3] - at[1], 0, 'f', 0);
            }
        }
        return found;
    }

private Q_SLOTS:
    void thresholdsEventsAndStates()
    {
        GraphModel model;
        show(model);
        model.setCursorPosition(3.5);
        model.curves().curve(0)->ownRange = ValueRange{0.0, 40.0};
        const GraphPaint paint(model, {600.0, 400.0});
        const GraphStrip& strip = model.curves().curve(0)->strip;
        // Line and band of each, from value to value; the bar of the episode; ticks, lane.
        const int eighth = int(strip.height / 8.0);
        const auto yellow = fillsOf(paint, model, 0xFFFFFF00);
        const auto red = fillsOf(paint, model, 0xFFFF0000);
        QVERIFY(yellow.contains(QString("0.0-10.0/%1").arg(2 * eighth)));
        QVERIFY(yellow.contains("0.0-10.0/1") && red.contains("0.0-10.0/1"));
        QVERIFY(red.contains(QString("0.0-10.0/%1").arg(2 * eighth)) && red.contains("2.0-5.0/4"));
        QVERIFY(yellow.contains("2.0-2.0/8") && red.contains("3.0-3.0/8"));
        QCOMPARE(fillsOf(paint, model, errorColor(ErrorWarning).rgb()).first().left(7), "2.0-4.0");
        QCOMPARE(fillsOf(paint, model, errorColor(ErrorFault).rgb()).first().left(7), "4.0-6.0");
        QVERIFY(fillsOf(paint, model, 0xFF00FF00).contains(QString("0.0-10.0/%1").arg(4 * eighth)));
        // Words on their segments, in legend, lane and speech.
        const QStringList texts = textsOf(paint);
        QCOMPARE(texts.count("ON"), 1);
        QCOMPARE(texts.count("OFF"), 2);
        QVERIFY(texts.contains("State   1: ON") && texts.contains("M") && texts.contains("hot"));
        QVERIFY(texts.contains("dead, hot"));
        QCOMPARE(spokenText(model, {}).section('\n', 0, 0), "00:00:03.500, Heat 30 C, State 1: ON");
        const auto& legend =
            *std::ranges::find(paint.texts.texts(), "Heat   30 C", &TextLayout::Text::text);
        QVERIFY(legend.plate == GraphColor::of(Qt::red)); // of the sample that holds
        QCOMPARE(paint.texts.legendAt(legend.box.center()), std::optional(0U));
        model.setCursorPosition(11.0); // nothing holds
        QVERIFY(textsOf(GraphPaint(model, {600.0, 400.0})).contains("State   ---"));
    }

    void whatIsOffIsNotThere()
    {
        GraphModel model;
        show(model);
        GraphStyle style;
        style.thresholdsOn = style.eventsOn = style.lanesOn = style.wordsOn = false;
        model.setCursorPosition(3.0);
        const GraphPaint paint(model, {600.0, 400.0}, style);
        QCOMPARE(paint.shapes.size(), GraphPaint(model, {600.0, 400.0}, style).shapes.size());
        for (const QRgb color : {0xFFFF0000, 0xFFFFFF00, 0xFF00FF00}) {
            QVERIFY(fillsOf(paint, model, color).isEmpty());
        }
        QVERIFY(textsOf(paint).contains("State   1") && !textsOf(paint).contains("M"));
        QVERIFY(NotePlaces(model, style).at(300.0, 395.0).empty());
        const auto light = themed(style, true);
        QVERIFY(light.isLight() && !themed(light, false).isLight());
        for (const GraphPaint::Shape& shape : GraphPaint(model, {600.0, 400.0}, light).shapes) {
            QVERIFY(shape.clip.isNull() || shape.points.empty() ||
                    contrastOf(shape.color, light.back) >= LegibleContrast);
        }
    }

    void notesAreFoundWhereTheyAreDrawn()
    {
        GraphModel model;
        show(model, 0.5); // the clock of this unit takes one
        const GraphStyle style;
        const GraphPaint paint(model, {600.0, 400.0}, style);
        const GraphView& view = model.layout().view();
        const NotePlaces places(model, style);
        const double top = view.y0 + view.height;
        const double bar = places.barBottom(*model.curves().curve(0)) + 1.0;
        const double lane = places.laneBottom(0) + 3.0;
        const std::tuple<double, double, QString> rows[] = {
            {2.5, top + 3.0, "00:00:02.500  D Heat 25 C\n00:00:02.500  M: hot came"},
            {3.5, top + 3.0,
             "00:00:03.500  D Heat 35 C\n00:00:03.500  D Lamp 1: Invalid ENUM Value"},
            {8.0, top + 3.0, ""},
            {4.5, bar,
             "Heat at its limit: 00:00:02.500 to 00:00:05.500, 3.0 s, peak 35 C at 00:00:03.500"},
            {6.0, bar, ""},
            {5.5, lane, "M: dead, hot\n00:00:04.500 to 00:00:06.500, 2.0 s"},
            {8.0, lane, ""},
            {4.5, top - 50.0, ""}};
        for (const auto& [time, y, expected] : rows) {
            QCOMPARE(textOf(places.at(view.xToViewport(time), y)), expected);
        }
        QCOMPARE(textOf(std::vector<GraphNote>(10, {1.0, 1.0, "x"})).section('\n', -1),
                 "and 2 more");
        QCOMPARE(captionOf(*model.hints().notes.flight(), {1.0, 2.5}),
                 "REC_8000.CAN  |  00:00:01.000 to 00:00:02.500 on the recording's clock  |  "
                 "profile.xml");
        Progress none;
        const Episode hot = model.hints().notes.flight()->troubles(0.5, none).faults.at(0);
        QVERIFY(hot.start == 2.5 && hot.end == 6.5);
        model.setDisplayMode(DisplaySingle);
        GraphPaint(model, {600.0, 400.0});
        model.hints().pointed = 1;
        for (const auto& [above, pointed] : {std::pair(13.0, 1U), {11.0, 0U}}) {
            pointAt(model, 3.5, model.curves().curve(0)->strip.toPixel(35.0) + above);
            QCOMPARE(model.hints().pointed, std::optional(pointed)); // the last where none is near
        }
    }

    void legendHidesAndMovesCurves()
    {
        GraphModel model;
        const std::vector<GraphColor> colors(6);
        for (const unsigned k : {0U, 1U, 2U, 3U}) {
            model.curves().curve(k)->active = k < 3;
            model.curves().curve(k)->name = QString("P%1").arg(k);
            model.curves().curve(k)->color = colors[k];
        }
        LegendGestures legend(model);
        CurveLooks looks;
        looks.byName["elsewhere"].hidden = true;
        legend.press(1, {10.0, 10.0});
        legend.move({12.0, 10.0}, 0U); // no drag yet
        legend.release();
        QVERIFY(model.curves().curve(1)->hidden);
        QCOMPARE(model.curves().shown(), std::vector<unsigned>({0, 2}));
        looks = looksOf(model.curves(), looks, colors);
        QVERIFY(looks.byName.size() == 2 && looks.byName["P1"].hidden && looks.order.empty());
        legend.press(0, {10.0, 10.0});
        legend.move({10.0, 90.0}, 2U);
        legend.release();
        QCOMPARE(model.curves().shown(), std::vector<unsigned>({2, 0}));
        model.curves().curve(2)->color = GraphColor::of(Qt::blue);
        model.curves().curve(2)->ownRange = ValueRange{1.0, 2.0};
        looks = looksOf(model.curves(), looks, colors);
        QCOMPARE(looks.order, std::vector<std::string>({"P1", "P2", "P0"}));
        QVERIFY(looks.byName["P2"].color == Qt::blue && looks.byName["P2"].range->second == 2.0);

        GraphModel other; // where P2 comes first, and P1 is not
        looks.byName["P3"].hidden = true;
        for (const auto& [k, name] : {std::pair(0U, "P0"), {1U, "P2"}, {2U, "P3"}}) {
            other.curves().curve(k)->active = true;
            other.curves().curve(k)->name = name;
        }
        applyLooks(other.curves(), looks, colors);
        QCOMPARE(other.curves().shown(), std::vector<unsigned>({1, 0}));
        QVERIFY(other.curves().curve(1)->color == GraphColor::of(Qt::blue));
        showOnly(model, 2);
        QCOMPARE(model.curves().shown(), std::vector<unsigned>({2}));
        showAllCurves(model);
        QCOMPARE(model.curves().shown().size(), 3U);
    }
};

QTEST_MAIN(TestNotes)
#include "tst_notes.moc"
