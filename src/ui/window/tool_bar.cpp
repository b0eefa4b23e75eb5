#include "ui/window/tool_bar.h"

#include "ui/document/document.h"
#include "ui/editor/drawing_tools.h"
#include "ui/editor/index_palette.h"
#include "ui/window/menu_bar.h"

#include <QMenu>
#include <QShortcut>
#include <QToolButton>

namespace Glyphor {

using namespace Qt::StringLiterals;

ToolBar::ToolBar(MenuBar& menus, Document& document, DrawingTools& tools) : QToolBar(tr("Tools"))
{
    setObjectName(u"tools"_s);
    setIconSize({20, 20});
    const auto add = [&](auto id, const QString& icon) {
        QAction* const command = menus.Command(id);
        command->setIcon(QIcon(u":/icons/%1.svg"_s.arg(icon)));
        addAction(command);
        return command;
    };
    add(ActionType::CreateFont, u"new"_s);
    AddRecentFiles(add(ActionType::OpenFont, u"open"_s), document);
    add(ActionType::SaveFont, u"save"_s);
    addSeparator();
    add(WindowCommand::Undo, u"undo"_s);
    add(WindowCommand::Redo, u"redo"_s);
    addSeparator();
    add(ActionType::Toggle, u"toggle"_s);
    add(WindowCommand::GoToCharacter, u"goto"_s);
    addSeparator();
    for (const ToolRow& tool : ToolTable()) {
        QAction* const command = add(tool.tool, QString::fromLatin1(tool.icon));
        command->setToolTip(
            tr("%1 (%2)").arg(QString(command->text()).remove(u'&'),
                              command->shortcut().toString(QKeySequence::NativeText)));
    }
    addWidget(&tools.Palette());
    for (QToolButton* const button : findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);
}

void ToolBar::AddRecentFiles(QAction* open, Document& document)
{
    auto* const button = qobject_cast<QToolButton*>(widgetForAction(open));
    auto* const menu = new QMenu(this);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    auto* const showMenu = new QShortcut(Qt::ALT | Qt::Key_Down, button);
    showMenu->setContext(Qt::WidgetShortcut);
    connect(showMenu, &QShortcut::activated, button, &QToolButton::showMenu);
    connect(menu, &QMenu::aboutToShow, &document,
            [&document, menu] { document.FillRecentMenu(*menu); });
}

} // namespace Glyphor
