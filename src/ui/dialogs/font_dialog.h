#pragma once

#include "render/font_database.h"
#include "ui/dialogs/font_size_box.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeWidget;

namespace Glyphor {

class FaceSample;

// Chooses an installed font: its family, its style and a size. The last choice is remembered.
class FontDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FontDialog(QWidget* parent);
    ~FontDialog() override;

    // Shows the families of the current database, and keeps the choice if it can.
    void ShowDatabase();

    // Tells whether the directories are being indexed.
    void SetIndexing(bool isIndexing);

    // Of the chosen style; empty where there is none.
    [[nodiscard]] QString Path() const;
    [[nodiscard]] int FaceIndex() const;

    [[nodiscard]] FontSize ChosenSize() const { return size_->Value(); }

Q_SIGNALS:
    void IndexRequested();
    void StopRequested(); // of the indexing
    void DirectoriesRequested();

private:
    [[nodiscard]] QWidget* MakeChoices();
    [[nodiscard]] QWidget* MakeSample();
    void ShowFamilies();
    void ShowStatus();
    void ShowStyles();
    void ShowSample();
    void UpdateCompleter();
    [[nodiscard]] const FontFamily* Family() const;
    [[nodiscard]] QString ChosenStyle() const;

    std::shared_ptr<const FontDatabase> database_;
    QString wantedFamily_; // chosen last, to be chosen again
    QString wantedStyle_;
    QString searched_;
    QLineEdit* search_;
    QComboBox* script_;
    QListWidget* families_;
    QTreeWidget* styles_;
    FontSizeBox* size_;
    FaceSample* sample_;
    QLabel* status_;
    QPushButton* index_; // starts it, or stops it
    bool isIndexing_ = false;
    QPushButton* ok_ = nullptr;
};

} // namespace Glyphor
