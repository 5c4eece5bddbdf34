// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/long_progress.h"

#include <QCoreApplication>

#include <limits>

namespace zeph {

namespace {

constexpr int leastWidth = 420;
constexpr int longestText = 60;

} // namespace

LongProgress::LongProgress(const QString &title, QWidget *parent, qint64 patience)
    : m_window(QString(), u"Cancel"_s, 0, 0, parent), m_patience(patience)
{
    m_window.setObjectName(u"LongProgress"_s);
    m_window.setWindowTitle(title);
    m_window.setWindowModality(Qt::WindowModal);
    m_window.setMinimumWidth(leastWidth);
    m_window.setAutoClose(false);
    m_window.setAutoReset(false);
    // The clock below decides when to show it: the toolkit's own guess needs to know the end.
    m_window.setMinimumDuration(std::numeric_limits<int>::max());
    m_window.reset();
    m_since.start();
}

bool LongProgress::step(const QString &text, int done, int all)
{
    if (m_window.wasCanceled()) {
        return false;
    }
    if (!m_window.isVisible() && m_since.elapsed() >= m_patience) {
        m_window.show();
    }
    if (!m_window.isVisible()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        return true;
    }
    m_window.setLabelText(text.size() > longestText ? u"..."_s + text.right(longestText) : text);
    m_window.setRange(0, all);
    m_window.setValue(done);
    QCoreApplication::processEvents();
    return !m_window.wasCanceled();
}

} // namespace zeph
