#pragma once

#include "model/font.h"

#include <QColor>
#include <QWidget>

class QCheckBox;
class QLineEdit;
class QSpinBox;
class QToolButton;

namespace Glyphor {

// A line of text in the pixels of a font, placed by the cursor distances as firmware places it.
class TextStrip : public QWidget
{
    Q_OBJECT

public:
    explicit TextStrip(QWidget* parent = nullptr);

    // Null for no font, which must outlive its use here. Call Resized() after every change of it.
    void ShowFont(const Font* font) { Take(font_, font); }
    void Resized();
    void SetText(const QString& text) { Take(text_, text); }
    void SetZoom(int zoom) { Take(zoom_, zoom); }
    void SetKerning(bool isOn) { Take(kerning_, isOn); }
    void SetColours(const QColor& ink, const QColor& paper);

    // Where each character of the text begins, in font pixels, and the end of the last one.
    [[nodiscard]] QList<int> Positions() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    template <typename Value>
    void Take(Value& shown, const Value& value)
    {
        shown = value;
        Resized();
    }

    [[nodiscard]] const Character* CharacterOf(QChar character) const;
    [[nodiscard]] int KerningBetween(QChar left, QChar right) const;
    void PaintMissing(QPainter& painter, int x) const;
    [[nodiscard]] int MissingWidth() const;

    const Font* font_ = nullptr;
    QString text_;
    int zoom_ = 2;
    bool kerning_ = false;
    QColor ink_ = Qt::black;
    QColor paper_ = Qt::white;
};

// The strip with its field, and what it is shown with.
class TextPreview final : public QWidget
{
    Q_OBJECT

public:
    explicit TextPreview(QWidget* parent = nullptr);

    void ShowFont(const Font* font);
    void Refresh();

    // The sample and how it is shown, to be remembered. An unknown state changes nothing.
    [[nodiscard]] QByteArray State() const;
    void RestoreState(const QByteArray& state);

    [[nodiscard]] TextStrip& Strip() const { return *strip_; }
    [[nodiscard]] QString Text() const;

Q_SIGNALS:
    void TextChanged();

private:
    void ChooseColour(QColor& colour, const QString& title);
    void ShowColours();

    TextStrip* strip_;
    QLineEdit* field_;
    QSpinBox* zoom_;
    QCheckBox* kerning_;
    const Font* font_ = nullptr;
    QToolButton* inkButton_;
    QToolButton* paperButton_;
    QColor ink_ = Qt::black;
    QColor paper_ = Qt::white;
};

} // namespace Glyphor
