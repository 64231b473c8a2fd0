#include "gui/WindowTest.h"
#include "track/WidgetTrack.h"

using namespace TARN;

/// The tab of the path, used by hand.
class TestTrackView : public WindowTest
{
    Q_OBJECT

private:
    WidgetTrack* chart() { return find<WidgetTrack>("track"); }
    const TrackGround& ground() { return *chart()->scene().ground; }
    QPointF pixelOf(std::size_t k) { return chart()->view().toPixel(ground().path.point(k)); }
    void click(const QPointF& pixel)
    {
        QTest::mouseClick(chart(), Qt::LeftButton, {}, pixel.toPoint());
    }
    void drag(const QPointF& from, const QPointF& to)
    {
        QTest::mousePress(chart(), Qt::LeftButton, {}, from.toPoint());
        QMouseEvent move(QEvent::MouseMove, to, chart()->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(chart(), &move);
        QTest::mouseRelease(chart(), Qt::LeftButton, {}, to.toPoint());
    }
    void turnWheel(const QPointF& at, int delta)
    {
        QWheelEvent turn(at, chart()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(chart(), &turn);
    }
    double apart(const QPointF& a, const QPointF& b) { return QLineF(a, b).length(); }
    /// Where the aircraft is at the session's time.
    QPointF aircraft()
    {
        const auto place = ground().track.at(session().time());
        return chart()->view().toPixel(ground().projection.toPlane(place->point));
    }

private Q_SLOTS:
    void byHand()
    {
        start();
        views()->setCurrentIndex(Track);
        QVERIFY2(chart()->emptyText().startsWith("No recording is loaded."),
                 qPrintable(chart()->emptyText()));
        views()->setCurrentIndex(Table);
        open({0, 1});
        QVERIFY(chart()->scene().ground == nullptr); // nobody looks
        views()->setCurrentIndex(Track);
        settle();
        QVERIFY(chart()->scene().marks != nullptr && chart()->emptyText().isEmpty());
        const std::size_t count = ground().track.size();
        QVERIFY(count > 1000);

        // The path leads to its moments, the heights too.
        const std::size_t last = count - 1;
        click(pixelOf(last));
        QVERIFY(apart(aircraft(), pixelOf(last)) < 2.0);
        QVERIFY(session().time() > session().flight()->info().startTime);
        const QRectF plot = chart()->heights().plot;
        QVERIFY(!plot.isEmpty());
        const QImage before = chart()->grab().toImage();
        click({plot.left() + plot.width() / 4.0, plot.center().y()});
        const double quarter =
            ground().track.time(0) + (ground().track.time(last) - ground().track.time(0)) / 4.0;
        QVERIFY(qAbs(session().time() - quarter) < 2.0);
        QVERIFY(chart()->grab().toImage() != before);
        const double moment = session().time();
        click(chart()->view().area.topLeft() + QPointF(200.0, 3.0)); // nothing is there
        QCOMPARE(session().time(), moment);

        // A drag pans, the wheel zooms about the pointer, keys do both.
        const QPointF start = chart()->view().area.center().toPoint();
        const QPointF held = chart()->view().toPlane(start);
        drag(start, start + QPointF(60.0, -40.0));
        QVERIFY(apart(chart()->view().toPixel(held), start + QPointF(60.0, -40.0)) < 1e-6);
        QCOMPARE(session().time(), moment);
        const QPointF pointed = chart()->view().toPlane({123.0, 45.0});
        const double scale = chart()->view().scale;
        turnWheel({123.0, 45.0}, 120);
        QVERIFY(chart()->view().scale < scale);
        QVERIFY(apart(chart()->view().toPixel(pointed), {123.0, 45.0}) < 1e-6);
        QTest::keyClick(chart(), Qt::Key_Minus);
        QTest::keyClick(chart(), Qt::Key_Left);
        QTest::keyClick(chart(), Qt::Key_Home);
        QVERIFY(chart()->view().area.contains(pixelOf(0)) &&
                chart()->view().area.contains(pixelOf(last)));
        QTest::keyClick(chart(), Qt::Key_PageDown);
        QVERIFY(session().time() > moment);

        // Whatever else moves the time.
        session().setTime(ground().track.time(last));
        QTest::keyClick(chart(), Qt::Key_PageDown); // there is no later one
        QCOMPARE(session().time(), ground().track.time(last));
    }

    void marksAndColors()
    {
        start();
        open({0, 1});
        views()->setCurrentIndex(Track);
        settle();
        const auto& marks = chart()->scene().marks->marks;
        QVERIFY(!marks.empty());
        const TrackMark& worst = marks.back();
        const QPointF pixel = chart()->view().toPixel(worst.place);
        QVERIFY2(tipAt(chart()->places(), pixel).contains(worst.text),
                 qPrintable(tipAt(chart()->places(), pixel)));
        click(pixel);
        QCOMPARE(session().time(), worst.time);
        QVERIFY(tipAt(chart()->places(), {3.0, 3.0}).isEmpty());

        auto* colors = find<QComboBox>("trackColors");
        const auto choose = [&](int row) {
            colors->setCurrentIndex(row);
            Q_EMIT colors->activated(row);
            settle();
        };
        QVERIFY(chart()->scene().colors == nullptr);
        choose(1);
        QCOMPARE(chart()->scene().colors->legend().title, QString("All parameters"));
        QVERIFY(colors->count() > 2);
        choose(2);
        QVERIFY(chart()->scene().colors->legend().isScale());
        QCOMPARE(chart()->scene().colors->legend().title, colors->currentText());
        const auto before = chart()->scene().ground;
        session().setOffset(5.0); // made anew, and coloured as before
        settle();
        QVERIFY(chart()->scene().ground != before && chart()->scene().colors != nullptr);
        session().setMarks({worst.time - 10.0, worst.time + 10.0});
        QCOMPARE(chart()->scene().range.start, worst.time - 10.0);
        chart()->grab();
    }

    void onlyWithPositions()
    {
        const QString profile =
            write("other.xml", "<CanAerospaceProfile><Device name='D'><Parameter name='a' id='500' "
                               "dataType='FLOAT' startByte='4'/></Device></CanAerospaceProfile>");
        writeSettings(cardPath(), profile, projectPath());
        start();
        QVERIFY(!views()->isTabVisible(Track));
        useProfile(profilePath());
        settle();
        QVERIFY(views()->isTabVisible(Track));
    }
};

QTEST_MAIN(TestTrackView)
#include "tst_track_view.moc"
