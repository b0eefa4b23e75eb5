#include "ui/menu_bar.h"

#include <QAction>
#include <QCoreApplication>

#include <string_view>

namespace Glyphor {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("Menu", text);
}

} // namespace

quint32 CommandId(const QAction& action)
{
    return action.data().toUInt();
}

MenuBar::MenuBar(QWidget* parent, QObject* receiver) : QMenuBar(parent), receiver_(receiver)
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
    const std::string_view text = row.text;
    QMenu* const menu =
        parent != nullptr ? parent->addMenu(Translated(row.text)) : addMenu(Translated(row.text));
    if (text == "Pi&xel index")
        pixelIndexMenu_ = menu;
    if (text == "&Edit")
        editMenu_ = menu;
    Build(row.Rows(), menu);
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
    connect(command, SIGNAL(triggered()), receiver_, SLOT(OnActionTriggered()));
    if (parent != nullptr)
        parent->addAction(command);
    commands_.insert(row.commandId, command);
}

} // namespace Glyphor
