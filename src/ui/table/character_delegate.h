#pragma once

#include <QStyledItemDelegate>

namespace Glyphor {

class CharacterModel;
struct Character;

// Paints the characters of the table in their own pixels, all at one zoom. What is too wide for its
// cell is cut, with a mark, and shown whole in its tool tip.
class CharacterDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // Around the pixels in a cell, in pixels of the screen.
    static constexpr int Margin = 3;

    // The model must outlive it.
    CharacterDelegate(const CharacterModel& model, QObject* parent);

    // How many pixels of the screen a character's pixel is wide and high.
    void ZoomTo(int zoom) { zoom_ = zoom; }
    [[nodiscard]] int Zoom() const { return zoom_; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    [[nodiscard]] bool IsCut(const Character& character, const QRect& cell) const;
    void PaintCharacter(QPainter& painter, const Character& character, bool isEnabled,
                        const QStyleOptionViewItem& option) const;

    const CharacterModel& model_;
    int zoom_ = 1;
};

} // namespace Glyphor
