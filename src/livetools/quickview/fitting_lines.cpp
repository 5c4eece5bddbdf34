// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/fitting_lines.h"

#include <QFontMetricsF>
#include <QTextLayout>

namespace zeph {

QStringList fittingLines(const QString &text, const QFont &font, qreal width, int mostLines)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    while (int(lines.size()) < mostLines) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(width);
        const bool isLast = int(lines.size()) + 1 == mostLines;
        lines.append(isLast ? QFontMetricsF(font).elidedText(text.mid(line.textStart()),
                                                             Qt::ElideRight, width)
                            : text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

} // namespace zeph
