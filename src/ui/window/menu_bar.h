#pragma once

#include "ui/window/menu_table.h"

#include <QHash>
#include <QMenuBar>

namespace Glyphor {

// The menus of the main window, made from the menu table, and their commands by number.
class MenuBar final : public QMenuBar
{
    Q_OBJECT

public:
    explicit MenuBar(QWidget* parent);

    // Null for an unknown number.
    [[nodiscard]] QAction* Command(quint32 id) const { return commands_.value(id); }
    [[nodiscard]] QAction* Command(ActionType action) const { return Command(CommandId(action)); }
    [[nodiscard]] QAction* Command(WindowCommand command) const
    {
        return Command(CommandId(command));
    }
    [[nodiscard]] QAction* Command(EditorTool tool) const { return Command(CommandId(tool)); }

    [[nodiscard]] QMenu* Submenu(SubmenuId id) const { return submenus_.value(id); }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void CommandTriggered(quint32 id);

protected:
    bool event(QEvent* event) override;

private:
    void Build(std::span<const MenuRow> rows, QMenu* parent);
    void AddSubmenu(const MenuRow& row, QMenu* parent);
    void FollowEntries(QMenu& menu);
    void AddCommand(const MenuRow& row, QMenu* parent);
    [[nodiscard]] static bool TakesKey(QEvent& event);
    static void MakeExclusive(QAction& command, QMenu& menu);

    QHash<quint32, QAction*> commands_;
    QHash<SubmenuId, QMenu*> submenus_;
};

} // namespace Glyphor
