// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

class SandboxProcess;
namespace tour { class Camera; }

// Renders the wall's main screens on a phone and a tablet to PNG files.
class ScreenshotTour
{
public:
    ScreenshotTour(SandboxProcess &sandbox, const QString &directory);
    int run();

private:
    void renderScreens(tour::Camera &camera);
    void shootWallForAChild(tour::Camera &camera);

    SandboxProcess &m_sandbox;
    QString m_directory;
};
