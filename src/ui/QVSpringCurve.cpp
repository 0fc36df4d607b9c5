// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVSpringCurve.h"

#include <cmath>

namespace {
// The motion is "settled" once the remaining displacement is below this fraction.
constexpr double kSettleFraction = 0.001;

constexpr QVSpringCurve::Parameters kFilterPanelOpen{1.0, 0.55, 0.1};
constexpr QVSpringCurve::Parameters kPanelSlide{0.5, 1.0, 0.5};

// Natural frequency that brings the spring's envelope to the settle fraction at the end.
double naturalFrequency(const QVSpringCurve::Parameters &p)
{
    if (p.dampingRatio < 1.0)
        return std::log(1.0 / kSettleFraction) / (p.dampingRatio * p.durationSeconds);
    // Critically damped: solve e^{-x}(1 + x) = settle fraction for x = w * duration.
    double x = 1.0;
    for (int i = 0; i < 60; ++i) {
        const double f = std::exp(-x) * (1.0 + x) - kSettleFraction;
        const double df = -x * std::exp(-x);
        x -= f / df;
    }
    return x / p.durationSeconds;
}

template <const QVSpringCurve::Parameters &P>
qreal easing(qreal t)
{
    return QVSpringCurve::progress(P, t);
}
} // namespace

QVSpringCurve::Parameters QVSpringCurve::parameters(Motion motion)
{
    return motion == Motion::FilterPanelOpen ? kFilterPanelOpen : kPanelSlide;
}

double QVSpringCurve::progress(const Parameters &p, double t)
{
    if (t <= 0.0)
        return 0.0;
    if (t >= 1.0)
        return 1.0;
    const double w0 = naturalFrequency(p);
    const double zeta = p.dampingRatio;
    const double time = t * p.durationSeconds;
    // Displacement x from the target starts at -1 with velocity v0 towards it.
    const double x0 = -1.0;
    const double v0 = p.initialVelocity;
    double x = 0.0;
    if (zeta < 1.0) {
        const double wd = w0 * std::sqrt(1.0 - zeta * zeta);
        const double envelope = std::exp(-zeta * w0 * time);
        x = envelope * (x0 * std::cos(wd * time) + ((v0 + zeta * w0 * x0) / wd) * std::sin(wd * time));
    } else {
        x = std::exp(-w0 * time) * (x0 + (v0 + w0 * x0) * time);
    }
    return 1.0 + x;
}

QEasingCurve QVSpringCurve::curve(Motion motion)
{
    QEasingCurve curve;
    curve.setCustomType(motion == Motion::FilterPanelOpen ? &easing<kFilterPanelOpen> : &easing<kPanelSlide>);
    return curve;
}
