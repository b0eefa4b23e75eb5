#include "ui/window/menu_bar.h"

#include <QAction>
#include <QCoreApplication>

#include <algorithm>

namespace Glyphor {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("Menu", text);
}

} // namespace

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent)
{
    Build(MenuTable(), nullptr);
}

void MenuBar::Build(std::span<const MenuRow> rows, QMenu* parent)
{
    for (const MenuRow& row : rows) {
        switch (row.kind) {
        case MenuRowKind::Separator:
            if (parent != nullptr)
                parent->addSeparator();
            break;
        case MenuRowKind::Submenu:
            AddSubmenu(row, parent);
            break;
        case MenuRowKind::Command:
            AddCommand(row, parent);
            break;
        }
    }
}

void MenuBar::AddSubmenu(const MenuRow& row, QMenu* parent)
{
    QMenu* const menu =
        parent != nullptr ? parent->addMenu(Translated(row.text)) : addMenu(Translated(row.text));
    if (row.submenuId != SubmenuId::None)
        submenus_.insert(row.submenuId, menu);
    Build(row.Rows(), menu);
    if (parent != nullptr)
        FollowEntries(*menu);
}

// A submenu is enabled as long as one of its entries is.
void MenuBar::FollowEntries(QMenu& menu)
{
    const auto follow = [&menu] {
        menu.menuAction()->setEnabled(std::ranges::any_of(menu.actions(), [](const QAction* entry) {
            return !entry->isSeparator() && entry->isEnabled();
        }));
    };
    for (const QAction* const entry : menu.actions()) {
        if (!entry->isSeparator())
            connect(entry, &QAction::enabledChanged, &menu, follow);
    }
    follow();
}

void MenuBar::AddCommand(const MenuRow& row, QMenu* parent)
{
    auto* const command = new QAction(Translated(row.text), this);
    command->setData(row.commandId);
    if (row.shortcut != nullptr)
        command->setShortcut(QKeySequence(QLatin1StringView(row.shortcut)));
    if (row.statusTip != nullptr)
        command->setStatusTip(Translated(row.statusTip));
    command->setEnabled(row.disabled == 0);
    if (row.checkable != 0) {
        command->setCheckable(true);
        command->setChecked(row.checked != 0);
    }
    connect(command, &QAction::triggered, this,
            [this, id = row.commandId] { Q_EMIT CommandTriggered(id); });
    if (parent != nullptr)
        parent->addAction(command);
    commands_.insert(row.commandId, command);
}

} // namespace Glyphor
