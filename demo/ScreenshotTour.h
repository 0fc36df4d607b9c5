#pragma once

#include <QtCore/QString>

class DemoSandbox;

// Renders the wall's main screens on a phone and a tablet to PNG files.
class ScreenshotTour
{
public:
    ScreenshotTour(DemoSandbox &sandbox, const QString &directory);
    int run();

private:
    DemoSandbox &m_sandbox;
    QString m_directory;
};
