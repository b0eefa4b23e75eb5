#include "ui/window/menu_bar.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QKeyEvent>

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
    menu->installEventFilter(this);
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

// In menus a plain key is that of an entry. It may be the shortcut of a command as well, which
// takes the menus for a place where it is one.
bool MenuBar::TakesKey(QEvent& event)
{
    if (event.type() != QEvent::ShortcutOverride)
        return false;
    const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((static_cast<QKeyEvent&>(event).modifiers() & commands) != 0)
        return false;
    event.accept();
    return true;
}

bool MenuBar::eventFilter(QObject* watched, QEvent* event)
{
    const bool isMenu = qobject_cast<QMenu*>(watched) != nullptr;
    return isMenu ? TakesKey(*event) : QMenuBar::eventFilter(watched, event);
}

bool MenuBar::event(QEvent* event)
{
    return TakesKey(*event) || QMenuBar::event(event);
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
    if (row.exclusive != 0)
        MakeExclusive(*command, *parent);
    commands_.insert(row.commandId, command);
}

void MenuBar::MakeExclusive(QAction& command, QMenu& menu)
{
    auto* group = menu.findChild<QActionGroup*>(QString(), Qt::FindDirectChildrenOnly);
    if (group == nullptr)
        group = new QActionGroup(&menu);
    group->addAction(&command);
}

} // namespace Glyphor
