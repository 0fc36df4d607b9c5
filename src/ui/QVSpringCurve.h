// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"

#include <QtCore/QEasingCurve>

// Progress of a damped spring released towards its target, as an easing curve over a
// fixed duration. The spring is tuned so that it has settled when the duration ends;
// an under-damped spring overshoots, a critically damped one does not. The initial
// velocity is in whole distances per second.
class QUORVAMEDIA_EXPORT QVSpringCurve
{
public:
    enum class Motion { FilterPanelOpen, PanelSlide };

    struct Parameters
    {
        double durationSeconds;
        double dampingRatio;
        double initialVelocity;
    };

    static Parameters parameters(Motion motion);
    static QEasingCurve curve(Motion motion);
    // Progress at time t (0..1 of the duration).
    static double progress(const Parameters &parameters, double t);
};
