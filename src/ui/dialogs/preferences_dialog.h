#pragma once

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
    void accept() override;

    // Takes a directory into the list, once.
    void AddDirectory(const QString& path);

private:
    [[nodiscard]] QWidget* MakeGeneralPage();
    [[nodiscard]] QWidget* MakeFilesPage();
    [[nodiscard]] QWidget* MakeFontsPage();
    [[nodiscard]] QStringList Directories() const;

    QTabWidget* pages_;
    QComboBox* numeralSystem_;
    QCheckBox* hideLegacy_;
    QCheckBox* logActions_;
    QCheckBox* createLogFile_;
    QCheckBox* useSystemEndings_;
    QComboBox* lineEndings_;
    QListWidget* directories_;
    QCheckBox* recursively_;
    QCheckBox* useBitmaps_;
};

} // namespace Glyphor
