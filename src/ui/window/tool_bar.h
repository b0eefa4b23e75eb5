#pragma once

#include <QToolBar>

namespace Glyphor {

class Document;
class DrawingTools;
class MenuBar;

// The commands that are used most, the recent files and the tools of the pixel editor.
class ToolBar final : public QToolBar
{
    Q_OBJECT

public:
    ToolBar(MenuBar& menus, Document& document, DrawingTools& tools);

private:
    void AddRecentFiles(QAction* open, Document& document);
};

} // namespace Glyphor
