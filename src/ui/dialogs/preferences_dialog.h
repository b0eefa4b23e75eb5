#pragma once

#include "app/settings.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QListWidget;
class QTabWidget;

namespace Glyphor {

// The preferences in groups; Ok stores them.
class PreferencesDialog final : public QDialog
{
    Q_OBJECT

public:
    enum Page { General = 0, Files = 1, Fonts = 2 };

    explicit PreferencesDialog(QWidget* parent);
    ~PreferencesDialog() override;

    void ShowPage(Page page);

    // Takes a directory into the list, once.
    void AddDirectory(const QString& path);

private:
    // Boxes and lists that show an option, and set it once the dialog is accepted.
    [[nodiscard]] QCheckBox* MakeBox(OptionByRef<bool>& option, const QString& text,
                                     const QString& toolTip = {});
    [[nodiscard]] QComboBox* MakeList(OptionByRef<int>& option, const QStringList& choices);

    [[nodiscard]] QWidget* MakeGeneralPage();
    [[nodiscard]] QWidget* MakeFilesPage();
    [[nodiscard]] QWidget* MakeFontsPage();
    [[nodiscard]] QStringList Directories() const;

    QTabWidget* pages_;
    QListWidget* directories_;
};

} // namespace Glyphor
