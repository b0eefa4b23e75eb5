#pragma once

#include <QToolBar>

namespace Glyphor {

class Document;
class MenuBar;
class PencilTool;

// The commands that are used most, the recent files and the pencil.
class ToolBar final : public QToolBar
{
    Q_OBJECT

public:
    ToolBar(MenuBar& menus, Document& document, PencilTool& pencil);

private:
    void AddRecentFiles(QAction* open, Document& document);
};

} // namespace Glyphor
