// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <memory>

class QMenu;

namespace zeph {

namespace Ui {
class TemplatesPage;
}

/// The page that inserts templates, formatted as they are.
class TemplatesPage : public ComposerPage
{
    Q_OBJECT
public:
    TemplatesPage(const ComposerParts &parts, QWidget *parent);
    ~TemplatesPage() override;

    bool read(const QString &) override { return false; }
    void enter() override;
    void windowActivated() override;

    /// Lists the templates: rich texts first, then plain ones.
    void FillTemplates();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeMenu();
    void showTemplate(const QString &name);
    void Command11_Click(int index);
    void insert();
    void mnuQuickie_Click();

    std::unique_ptr<Ui::TemplatesPage> m_ui;
    QMenu *mnuTemplates = nullptr;
    QString m_shown; ///< the name of the template in the preview
};

/// The names of the templates in a folder: "*.rtf" by name, then "*.txt" by name.
QStringList templateNames(const QString &folder);

} // namespace zeph
