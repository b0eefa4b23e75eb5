#include "ui/preview/text_preview.h"

#include "ui/support/char_picture.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDataStream>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

namespace {

constexpr int Margin = 6; // around the text, in pixels of the screen

} // namespace

TextStrip::TextStrip(QWidget* parent) : QWidget(parent)
{
    setAccessibleName(tr("Sample in the font's pixels"));
}

// As large as the text: what is around it scrolls.
void TextStrip::Resized()
{
    setMinimumSize(sizeHint());
    update();
}

void TextStrip::SetColours(const QColor& ink, const QColor& paper)
{
    ink_ = ink;
    paper_ = paper;
    update();
}

const Character* TextStrip::CharacterOf(QChar character) const
{
    if (font_ == nullptr)
        return nullptr;
    const auto code = Encoded(character.unicode(), font_->Metrics().encoding);
    return code && font_->IsEnabled(*code) ? font_->FindChar(*code) : nullptr;
}

int TextStrip::KerningBetween(QChar left, QChar right) const
{
    const Character* const character = CharacterOf(left);
    if (!kerning_ || character == nullptr)
        return 0;
    const auto code = Encoded(right.unicode(), font_->Metrics().encoding);
    if (!code)
        return 0;
    const auto pair = std::ranges::find(character->kerning, *code, &KerningPair::right);
    return pair == character->kerning.end() ? 0 : pair->distance;
}

// Missing characters show as boxes.
int TextStrip::MissingWidth() const
{
    return std::max(3, font_->Metrics().height / 2);
}

QList<int> TextStrip::Positions() const
{
    QList<int> positions;
    int x = 0;
    for (qsizetype index = 0; font_ != nullptr && index < text_.size(); ++index) {
        if (index > 0)
            x += KerningBetween(text_[index - 1], text_[index]);
        positions.append(x);
        const Character* const character = CharacterOf(text_[index]);
        x += character != nullptr ? int(character->info.cursorDistance) : MissingWidth();
    }
    positions.append(x);
    return positions;
}

QSize TextStrip::sizeHint() const
{
    const int height = font_ != nullptr ? font_->Metrics().height : 16;
    return {Positions().last() * zoom_ + 2 * Margin, height * zoom_ + 2 * Margin};
}

void TextStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), paper_);
    if (font_ == nullptr)
        return;
    const QList<int> positions = Positions();
    for (qsizetype index = 0; index < text_.size(); ++index) {
        const Character* const character = CharacterOf(text_[index]);
        if (character == nullptr) {
            PaintMissing(painter, positions[index]);
            continue;
        }
        const QImage picture = CharPicture(*character, ink_, paper_);
        const CharInfo& info = character->info;
        const bool isLegacy = IsLegacyFormat(info.font.format);
        const QPoint origin(positions[index] + info.xPos, isLegacy ? 0 : info.yPos);
        painter.drawImage(QRect(origin * zoom_ + QPoint(Margin, Margin), picture.size() * zoom_),
                          picture);
    }
}

void TextStrip::PaintMissing(QPainter& painter, int x) const
{
    const int height = font_->Metrics().height;
    painter.setPen(QPen(ink_, 1, Qt::DotLine));
    painter.drawRect(QRect(QPoint(x, 0) * zoom_ + QPoint(Margin, Margin),
                           QSize(MissingWidth() - 1, height - 1) * zoom_));
}

TextPreview::TextPreview(QWidget* parent)
    : QWidget(parent),
      strip_(new TextStrip),
      field_(new QLineEdit(tr("The quick brown fox jumps over the lazy dog. 0123456789"))),
      zoom_(new QSpinBox),
      kerning_(new QCheckBox(tr("&Kerning"))),
      inkButton_(new QToolButton),
      paperButton_(new QToolButton)
{
    field_->setAccessibleName(tr("Sample text"));
    zoom_->setRange(1, 8);
    zoom_->setPrefix(tr("×"));
    zoom_->setAccessibleName(tr("Zoom of the sample"));
    ShowColours();
    inkButton_->setToolTip(tr("Colour of the ink"));
    paperButton_->setToolTip(tr("Colour of the paper"));
    for (QToolButton* const button : {inkButton_, paperButton_})
        button->setAccessibleName(button->toolTip());

    QScrollArea* const area = ScrollAreaOf(*strip_);
    area->setFrameShape(QFrame::StyledPanel);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->addWidget(
        Row({LabelFor(*field_, tr("Sa&mple:")), field_, zoom_, kerning_, inkButton_, paperButton_},
            field_));
    layout->addWidget(area, 1);

    connect(field_, &QLineEdit::textChanged, strip_, &TextStrip::SetText);
    connect(field_, &QLineEdit::textChanged, this, &TextPreview::TextChanged);
    connect(zoom_, &QSpinBox::valueChanged, strip_, &TextStrip::SetZoom);
    connect(kerning_, &QCheckBox::toggled, strip_, &TextStrip::SetKerning);
    connect(inkButton_, &QToolButton::clicked, this, [this] { ChooseColour(ink_, tr("Ink")); });
    connect(paperButton_, &QToolButton::clicked, this,
            [this] { ChooseColour(paper_, tr("Paper")); });
    zoom_->setValue(2);
    field_->setCursorPosition(0);
    strip_->SetText(field_->text());
}

void TextPreview::ShowFont(const Font* font)
{
    font_ = font;
    strip_->ShowFont(font);
    kerning_->setEnabled(font != nullptr && font->HasKerning());
}

QString TextPreview::Text() const
{
    return field_->text();
}

void TextPreview::Refresh()
{
    strip_->Resized();
    kerning_->setEnabled(font_ != nullptr && font_->HasKerning());
}

QByteArray TextPreview::State() const
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << field_->text() << qint32(zoom_->value()) << kerning_->isChecked() << ink_ << paper_;
    return state;
}

void TextPreview::RestoreState(const QByteArray& state)
{
    QDataStream stream(state);
    QString text;
    qint32 zoom = 0;
    bool hasKerning = false;
    QColor ink;
    QColor paper;
    stream >> text >> zoom >> hasKerning >> ink >> paper;
    if (stream.status() != QDataStream::Ok)
        return;
    field_->setText(text);
    field_->setCursorPosition(0);
    zoom_->setValue(zoom);
    kerning_->setChecked(hasKerning);
    ink_ = ink;
    paper_ = paper;
    ShowColours();
}

void TextPreview::ChooseColour(QColor& colour, const QString& title)
{
    const QColor chosen = QColorDialog::getColor(colour, this, title);
    if (!chosen.isValid())
        return;
    colour = chosen;
    ShowColours();
}

void TextPreview::ShowColours()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(ink_);
    inkButton_->setIcon(pixmap);
    pixmap.fill(paper_);
    paperButton_->setIcon(pixmap);
    strip_->SetColours(ink_, paper_);
}

} // namespace Glyphor
