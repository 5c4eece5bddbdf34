// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/mouse_lists.h"

#include "composer/mouse/mouse_programs.h"

#include <QLineEdit>

namespace zeph {

void fillResolutions(QComboBox &list, const QSize &picture)
{
    const QString before = list.currentText();
    QStringList entries;
    for (const QStringView resolution : screenResolutions) {
        entries.append(resolution.toString());
    }
    const QString ofPicture = resolutionText(picture);
    if (!ofPicture.isEmpty() && !entries.contains(ofPicture)) {
        entries.append(ofPicture);
    }
    list.clear();
    list.addItems(entries);
    const QString selected = ofPicture.isEmpty() ? before : ofPicture;
    if (!selected.isEmpty()) {
        list.setCurrentText(selected);
    }
}

void fillSteps(QComboBox &list, int selected)
{
    list.clear();
    for (int steps = 1; steps <= mostSteps; ++steps) {
        list.addItem(QString::number(steps));
    }
    list.setCurrentText(QString::number(selected));
}

void nameBox(const QComboBox &list, const QString &accessibleName)
{
    list.lineEdit()->setObjectName(list.objectName() + u"_Box"_s);
    list.lineEdit()->setAccessibleName(accessibleName);
}

void giveRoomForStatement(QLabel &label)
{
    constexpr int lines = 2;
    const int frame = label.frameWidth() + label.margin();
    label.setMinimumHeight(lines * label.fontMetrics().lineSpacing() + 2 * frame);
}

} // namespace zeph
