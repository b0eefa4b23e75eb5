#pragma once

#include "model/font.h"

#include <QAbstractTableModel>
#include <QItemSelection>

#include <vector>

namespace Glyphor {

// All codes of a font in rows of 16. Rows without characters are left out.
class CharacterModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int Columns = 16;

    // What the roles of a cell carry; its picture is black ink on nothing, one to one.
    enum Role { CodeRole = Qt::UserRole, NameRole, EnabledRole, PictureRole };

    using QAbstractTableModel::QAbstractTableModel;

    // Null for no font. The font must outlive its use here; call Refresh() after every change.
    void ShowFont(const Font* font);

    // True where rows came or went, which resets the model.
    bool Refresh();

    // False leaves out the characters that are not enabled. As Refresh() does, it tells whether
    // there are other rows.
    bool ShowAll(bool isOn);
    [[nodiscard]] bool ShowsAll() const { return showsAll_; }

    void ShowHexadecimal(bool isOn);

    [[nodiscard]] const Font* ShownFont() const { return font_; }

    [[nodiscard]] quint16 CodeOf(const QModelIndex& index) const;

    // Invalid where the row of the code is not shown.
    [[nodiscard]] QModelIndex IndexOf(int code) const;

    // Null where there is none, or none that is shown.
    [[nodiscard]] const Character* CharacterAt(quint16 code) const;

    // The code with its name.
    [[nodiscard]] QString Description(quint16 code) const;

    // The width that nine tenths of the shown characters do not exceed, in pixels.
    [[nodiscard]] int UsualWidth() const { return usualWidth_; }

    // The cells of the codes.
    [[nodiscard]] QItemSelection Cells(const CodeSet& codes) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] std::vector<int> FindRows() const;
    [[nodiscard]] int FindUsualWidth() const;
    [[nodiscard]] QString NumberText(int code) const;
    [[nodiscard]] QString AccessibleText(quint16 code) const;

    const Font* font_ = nullptr;
    bool showsAll_ = true;
    bool isHexadecimal_ = true;
    std::vector<int> rows_; // their first codes, divided by 16
    int usualWidth_ = 1;
};

} // namespace Glyphor
