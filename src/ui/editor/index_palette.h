#pragma once

#include <QWidget>

class QButtonGroup;

namespace Glyphor {

// A field for each index of the font, in its grey, of which one is chosen to paint with.
class IndexPalette final : public QWidget
{
    Q_OBJECT

public:
    explicit IndexPalette(QWidget* parent = nullptr);

    // Chooses the highest index where the depth is another one; 0 for no font.
    void SetDepth(int bitsPerPixel);

    // An index beyond the depth changes nothing.
    void SetIndex(int index);
    [[nodiscard]] int Index() const;

private:
    int depth_ = -1;
    QButtonGroup* fields_;
};

} // namespace Glyphor
