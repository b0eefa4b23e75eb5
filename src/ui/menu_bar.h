#pragma once

#include "ui/menu_table.h"

#include <QHash>
#include <QMenuBar>

namespace Glyphor {

// The menus of the main window, made from the menu table, and their commands by number.
class MenuBar final : public QMenuBar
{
    Q_OBJECT

public:
    // Every command calls the receiver's OnActionTriggered() slot.
    MenuBar(QWidget* parent, QObject* receiver);

    // Null for an unknown number.
    [[nodiscard]] QAction* Command(quint32 id) const { return commands_.value(id); }

    [[nodiscard]] QMenu* PixelIndexMenu() const { return pixelIndexMenu_; }
    [[nodiscard]] QMenu* EditMenu() const { return editMenu_; }

private:
    void Build(std::span<const MenuRow> rows, QMenu* parent);
    void AddSubmenu(const MenuRow& row, QMenu* parent);
    void AddCommand(const MenuRow& row, QMenu* parent);

    QObject* receiver_;
    QHash<quint32, QAction*> commands_;
    QMenu* pixelIndexMenu_ = nullptr;
    QMenu* editMenu_ = nullptr;
};

// The number of the command that an action of the menus is.
[[nodiscard]] quint32 CommandId(const QAction& action);

} // namespace Glyphor
