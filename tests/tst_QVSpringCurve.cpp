#include "QVSpringCurve.h"

#include <QtTest/QtTest>

// The slide animations follow a damped spring; sampled here rather than watched.
class tst_QVSpringCurve : public QObject
{
    Q_OBJECT

private slots:
    void bouncyOpeningOvershootsOnce();
    void criticallyDampedSlideNeverOvershoots();
    void initialVelocitySetsTheStartingSlope_data();
    void initialVelocitySetsTheStartingSlope();
};



void tst_QVSpringCurve::bouncyOpeningOvershootsOnce()
{
    const QEasingCurve curve = QVSpringCurve::curve(QVSpringCurve::Motion::FilterPanelOpen);
    double peak = 0;
    int crossings = 0;
    double previous = 0;
    for (int i = 1; i <= 1000; ++i) {
        const double value = curve.valueForProgress(i / 1000.0);
        peak = qMax(peak, value);
        if ((previous - 1.0) * (value - 1.0) < 0)
            ++crossings;
        previous = value;
    }
    // Damping 0.55 overshoots by e^(-pi*z/sqrt(1-z^2)), about 12.6 percent.
    QVERIFY2(peak > 1.10 && peak < 1.15, qPrintable(QString::number(peak)));
    QVERIFY(crossings >= 2);
}

void tst_QVSpringCurve::criticallyDampedSlideNeverOvershoots()
{
    const QEasingCurve curve = QVSpringCurve::curve(QVSpringCurve::Motion::PanelSlide);
    double previous = 0;
    for (int i = 1; i <= 1000; ++i) {
        const double value = curve.valueForProgress(i / 1000.0);
        QVERIFY(value <= 1.0 + 1e-9);
        QVERIFY(value >= previous - 1e-9);
        previous = value;
    }
    QVERIFY(curve.valueForProgress(0.25) > 0.5);
}

void tst_QVSpringCurve::initialVelocitySetsTheStartingSlope_data()
{
    QTest::addColumn<double>("velocity");
    QTest::newRow("still") << 0.0;
    QTest::newRow("fast") << 4.0;
}

void tst_QVSpringCurve::initialVelocitySetsTheStartingSlope()
{
    QFETCH(double, velocity);
    const QVSpringCurve::Parameters p{1.0, 0.55, velocity};
    const double h = 1e-5;
    const double slope = QVSpringCurve::progress(p, h) / (h * p.durationSeconds);
    QVERIFY2(qAbs(slope - velocity) < 0.01, qPrintable(QString::number(slope)));
}

QTEST_APPLESS_MAIN(tst_QVSpringCurve)
#include "tst_QVSpringCurve.moc"
