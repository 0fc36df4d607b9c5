// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMutex>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

// Records every log message while it lives and passes each on to the handler that was
// installed before (so QTest::ignoreMessage still works). Lets a test wait for a log
// line as a state.
class LogCapture
{
public:
    LogCapture() { s_current = this; s_previous = qInstallMessageHandler(&LogCapture::handle); }
    ~LogCapture() { qInstallMessageHandler(s_previous); s_current = nullptr; }

    QStringList messages() const
    {
        QMutexLocker lock(&m_mutex);
        return m_messages;
    }
    bool contains(const QString &text) const { return messages().contains(text); }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (LogCapture *capture = s_current) {
            QMutexLocker lock(&capture->m_mutex);
            capture->m_messages.append(message);
        }
        if (s_previous)
            s_previous(type, context, message);
    }

    static inline LogCapture *s_current = nullptr;
    static inline QtMessageHandler s_previous = nullptr;
    mutable QMutex m_mutex;
    QStringList m_messages;
};
