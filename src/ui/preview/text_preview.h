#pragma once

#include "model/font.h"

#include <QColor>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QSpinBox;
class QToolButton;

namespace Glyphor {

// What a sample is painted with. The background is that behind the paper of framed fonts.
struct SampleColours
{
    QColor ink = Qt::black;
    QColor paper = Qt::white;
    QColor background = QColor(0x7A, 0xA7, 0xD0);

    bool operator==(const SampleColours&) const = default;
};

// Lines of text in the pixels of a font, placed by the cursor distances as firmware places them.
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
    void SetColours(const SampleColours& colours);

    // Zooms as far as the text fits, and goes on doing so.
    void FitZoom() { Take(fits_, true); }
    [[nodiscard]] int Zoom() const;

    // Where each character of the text begins in its line, in font pixels, and the end of the last.
    [[nodiscard]] QList<int> Positions() const;

    // The characters of the text that the font does not have, or not enabled, each once.
    [[nodiscard]] QString Missing() const;

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
    void PaintMissing(QPainter& painter, QPoint place) const;
    [[nodiscard]] int MissingWidth() const;
    [[nodiscard]] QSize TextSize() const;
    [[nodiscard]] int LineHeight() const;

    const Font* font_ = nullptr;
    QString text_;
    int zoom_ = 2;
    bool fits_ = false;
    bool kerning_ = false;
    SampleColours colours_;
};

// The strip with its field, and what it is shown with.
class TextPreview final : public QWidget
{
    Q_OBJECT

public:
    explicit TextPreview(QWidget* parent = nullptr);

    void ShowFont(const Font* font);
    void Refresh();
    void SetSample(const QString& text);

    // The sample and how it is shown, to be remembered. An unknown state changes nothing.
    [[nodiscard]] QByteArray State() const;
    void RestoreState(const QByteArray& state);

    [[nodiscard]] TextStrip& Strip() const { return *strip_; }
    [[nodiscard]] const SampleColours& Colours() const { return colours_; }

    // Takes them, and keeps them as the last ones.
    void UseColours(const SampleColours& colours);

    [[nodiscard]] QString Text() const;

Q_SIGNALS:
    void TextChanged();

private:
    void AddColourButton(QToolButton& button, const QString& name, QColor SampleColours::*colour);
    void FillPresets();
    void ShowColours();
    void ShowMissing();

    TextStrip* strip_;
    QPlainTextEdit* field_;
    QSpinBox* zoom_;
    QCheckBox* kerning_;
    const Font* font_ = nullptr;
    QToolButton* inkButton_;
    QToolButton* paperButton_;
    QToolButton* backgroundButton_; // of framed fonts
    QToolButton* presetsButton_;
    QLabel* missing_;
    SampleColours colours_;
    QList<SampleColours> lastColours_; // the latest first
};

} // namespace Glyphor
