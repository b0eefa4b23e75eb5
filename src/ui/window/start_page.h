#pragma once

#include <QWidget>

class QVBoxLayout;

namespace Glyphor {

// What one can do in a window without a font, with the recent files as links.
class StartPage final : public QWidget
{
    Q_OBJECT

public:
    StartPage();

    void ShowRecentFiles(const QStringList& paths);

Q_SIGNALS:
    void NewRequested();
    void OpeningRequested();              // of a file that is asked for
    void FileChosen(const QString& path); // of the recent ones

private:
    QVBoxLayout* recent_;
};

} // namespace Glyphor
