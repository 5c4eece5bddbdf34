// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_tools.h"

#include "templates/templateform.h"

namespace zeph {

void addTemplateTools(const ToolEntries &tools, const Context &context, Printers &printers,
                      const MacroTable &macros)
{
    tools.add<TemplateForm>(u"mnuAppsTemplateEditor",
                            [context, &printers, &macros](QWidget *owner) {
                                return new TemplateForm(context, printers, macros, owner);
                            });
}

} // namespace zeph
