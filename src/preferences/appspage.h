// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lists/custom_apps.h"
#include "platform/context.h"
#include "preferences/preferences_page.h"

#include <memory>

class QCheckBox;
class QGridLayout;
class QLineEdit;

namespace zeph {

class CustomAppsMenu;
struct FileRequest;

namespace Ui {
class AppsPage;
}

/// The files that the Image Viewer and the Template Editor open first, and the four custom
/// applications.
class AppsPage : public PreferencesPage
{
    Q_OBJECT
public:
    AppsPage(const Context &context, CustomAppsMenu &apps, QWidget *parent);
    ~AppsPage() override;

    void collect() override;

private:
    struct Fields {
        QLineEdit *name = nullptr;
        QLineEdit *path = nullptr;
        QCheckBox *use = nullptr;
    };

    void addFields(size_t index);
    void connectFields(const Fields &fields);
    void browse(QLineEdit &field, const FileRequest &request, const QString &folder);
    void browseForApp(const Fields &fields);
    void askIfTyped(const Fields &fields);
    void askAboutApplet(const Fields &fields);

    Context m_context;
    CustomAppsMenu &m_menu;
    std::unique_ptr<Ui::AppsPage> m_ui;
    std::array<Fields, std::tuple_size_v<CustomApps>> m_fields;
};

} // namespace zeph
