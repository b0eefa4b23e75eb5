#include "ui/preview/text_preview.h"

#include "ui/support/char_picture.h"
#include "ui/support/dialog_parts.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDataStream>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 6; // around the text, in pixels of the screen
constexpr qsizetype MostLastColours = 5;

// Their background is the one that is shown.
QList<std::pair<QString, SampleColours>> Presets()
{
    return {{TextPreview::tr("Black on white"), {Qt::black, Qt::white}},
            {TextPreview::tr("White on black"), {Qt::white, Qt::black}}};
}

QIcon Sketch(const SampleColours& colours)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colours.paper);
    QPainter(&pixmap).fillRect(4, 4, 8, 8, colours.ink);
    return pixmap;
}

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

void TextStrip::SetColours(const SampleColours& colours)
{
    colours_ = colours;
    update();
}

// Of the text where it fits, that fills what there is.
int TextStrip::Zoom() const
{
    constexpr int most = 8;
    if (!fits_)
        return zoom_;
    const QSize room = size() - QSize(2 * Margin, 2 * Margin);
    const QSize text = TextSize().expandedTo({1, 1});
    return std::clamp(std::min(room.width() / text.width(), room.height() / text.height()), 1,
                      most);
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
        if (text_[index] == u'\n')
            x = 0;
        else
            x += character != nullptr ? int(character->info.cursorDistance) : MissingWidth();
    }
    positions.append(x);
    return positions;
}

QString TextStrip::Missing() const
{
    QString missing;
    for (qsizetype index = 0; font_ != nullptr && index < text_.size(); ++index) {
        const QChar character = text_[index];
        if (character != u'\n' && CharacterOf(character) == nullptr && !missing.contains(character))
            missing.append(character);
    }
    return missing;
}

int TextStrip::LineHeight() const
{
    return font_ != nullptr ? std::max(font_->Metrics().height, font_->Metrics().verticalSpace)
                            : 16;
}

QSize TextStrip::TextSize() const
{
    const QList<int> positions = Positions();
    const auto lines = int(text_.count(u'\n')) + 1;
    return {*std::ranges::max_element(positions), lines * LineHeight()};
}

QSize TextStrip::sizeHint() const
{
    return TextSize() * (fits_ ? 1 : zoom_) + QSize(2 * Margin, 2 * Margin);
}

void TextStrip::paintEvent(QPaintEvent*)
{
    const bool isFramed = font_ != nullptr && font_->Metrics().format == FontFormat::Framed;
    QPainter painter(this);
    painter.fillRect(rect(), isFramed ? colours_.background : colours_.paper);
    if (font_ == nullptr)
        return;
    const QList<int> positions = Positions();
    const int zoom = Zoom();
    int top = 0;
    for (qsizetype index = 0; index < text_.size(); ++index) {
        if (text_[index] == u'\n') {
            top += LineHeight();
            continue;
        }
        const Character* const character = CharacterOf(text_[index]);
        if (character == nullptr) {
            PaintMissing(painter, {positions[index], top});
            continue;
        }
        const QImage picture = CharPicture(*character, colours_.ink, colours_.paper);
        const CharInfo& info = character->info;
        const bool isLegacy = IsLegacyFormat(info.font.format);
        const QPoint origin(positions[index] + info.xPos, top + (isLegacy ? 0 : info.yPos));
        painter.drawImage(QRect(origin * zoom + QPoint(Margin, Margin), picture.size() * zoom),
                          picture);
    }
}

void TextStrip::PaintMissing(QPainter& painter, QPoint place) const
{
    const int height = font_->Metrics().height;
    painter.setPen(QPen(colours_.ink, 1, Qt::DotLine));
    painter.drawRect(QRect(place * Zoom() + QPoint(Margin, Margin),
                           QSize(MissingWidth() - 1, height - 1) * Zoom()));
}

TextPreview::TextPreview(QWidget* parent)
    : QWidget(parent),
      strip_(new TextStrip),
      field_(new QPlainTextEdit),
      zoom_(new QSpinBox),
      kerning_(new QCheckBox(tr("&Kerning"))),
      inkButton_(new QToolButton),
      paperButton_(new QToolButton),
      backgroundButton_(new QToolButton),
      presetsButton_(new QToolButton),
      missing_(PlainLabel())
{
    constexpr int lines = 2;
    field_->setAccessibleName(tr("Sample text"));
    field_->setToolTip(tr("Several lines are possible."));
    field_->setTabChangesFocus(true);
    field_->setLineWrapMode(QPlainTextEdit::NoWrap);
    field_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    field_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    field_->setMinimumHeight(lines * field_->fontMetrics().lineSpacing());
    field_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    zoom_->setRange(1, 8);
    zoom_->setPrefix(tr("×"));
    zoom_->setAccessibleName(tr("Zoom of the sample"));
    AddColourButton(*inkButton_, tr("Colour of the ink"), &SampleColours::ink);
    AddColourButton(*paperButton_, tr("Colour of the paper"), &SampleColours::paper);
    AddColourButton(*backgroundButton_, tr("Colour behind the frame"), &SampleColours::background);
    presetsButton_->setText(tr("Colours"));
    presetsButton_->setToolTip(tr("Colours that are used often"));
    presetsButton_->setPopupMode(QToolButton::InstantPopup);
    presetsButton_->setMenu(new QMenu(presetsButton_));
    missing_->setWordWrap(true);
    missing_->hide();
    ShowColours();
    backgroundButton_->hide();

    QScrollArea* const area = ScrollAreaOf(*strip_);
    area->setFrameShape(QFrame::StyledPanel);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    QWidget* const view = Row({zoom_, kerning_}, nullptr);
    QWidget* const colours =
        Row({inkButton_, paperButton_, backgroundButton_, presetsButton_}, nullptr);
    auto* const entries = new QHBoxLayout;
    entries->addWidget(LabelFor(*field_, tr("Sa&mple:")));
    entries->addWidget(field_, 1);
    entries->addWidget(Column({view, colours}, nullptr));
    layout->addLayout(entries);
    layout->addWidget(area, 1);
    layout->addWidget(missing_);

    connect(field_, &QPlainTextEdit::textChanged, this, [this] {
        strip_->SetText(field_->toPlainText());
        ShowMissing();
        Q_EMIT TextChanged();
    });
    connect(zoom_, &QSpinBox::valueChanged, strip_, &TextStrip::SetZoom);
    connect(kerning_, &QCheckBox::toggled, strip_, &TextStrip::SetKerning);
    connect(presetsButton_->menu(), &QMenu::aboutToShow, this, &TextPreview::FillPresets);
    zoom_->setValue(2);
    SetSample(tr("The quick brown fox jumps over the lazy dog. 0123456789"));
}

void TextPreview::SetSample(const QString& text)
{
    field_->setPlainText(text);
}

void TextPreview::ShowFont(const Font* font)
{
    font_ = font;
    strip_->ShowFont(font);
    kerning_->setEnabled(font != nullptr && font->HasKerning());
    backgroundButton_->setVisible(font != nullptr && font->Metrics().format == FontFormat::Framed);
    ShowMissing();
}

void TextPreview::Refresh()
{
    strip_->Resized();
    kerning_->setEnabled(font_ != nullptr && font_->HasKerning());
    ShowMissing();
}

// As many as tell what is wrong.
void TextPreview::ShowMissing()
{
    constexpr qsizetype most = 12;
    const QString missing = strip_->Missing();
    QStringList names;
    for (const QChar character : missing.left(most))
        names.append(character.isPrint() && !character.isSpace()
                         ? CodeText(character.unicode()) + u' ' + character
                         : CodeText(character.unicode()));
    if (missing.size() > most)
        names.append(u"..."_s);
    missing_->setText(tr("Not in the font or disabled: %1").arg(names.join(u", "_s)));
    missing_->setVisible(!missing.isEmpty());
}

QString TextPreview::Text() const
{
    return field_->toPlainText();
}

QByteArray TextPreview::State() const
{
    QByteArray state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << field_->toPlainText() << qint32(zoom_->value()) << kerning_->isChecked()
           << colours_.ink << colours_.paper << colours_.background << qint32(lastColours_.size());
    for (const SampleColours& colours : lastColours_)
        stream << colours.ink << colours.paper << colours.background;
    return state;
}

// What older releases kept ends with the paper.
void TextPreview::RestoreState(const QByteArray& state)
{
    QDataStream stream(state);
    QString text;
    qint32 zoom = 0;
    bool hasKerning = false;
    SampleColours colours;
    stream >> text >> zoom >> hasKerning >> colours.ink >> colours.paper;
    if (stream.status() != QDataStream::Ok)
        return;
    SetSample(text);
    zoom_->setValue(zoom);
    kerning_->setChecked(hasKerning);
    qint32 count = 0;
    if (!stream.atEnd())
        stream >> colours.background >> count;
    colours_ = colours;
    lastColours_.clear();
    for (int index = 0; index < std::min<int>(count, MostLastColours); ++index) {
        stream >> colours.ink >> colours.paper >> colours.background;
        if (stream.status() == QDataStream::Ok)
            lastColours_.append(colours);
    }
    ShowColours();
}

void TextPreview::AddColourButton(QToolButton& button, const QString& name,
                                  QColor SampleColours::*colour)
{
    button.setToolTip(name);
    button.setAccessibleName(name);
    connect(&button, &QToolButton::clicked, this, [this, name, colour] {
        const QColor chosen = QColorDialog::getColor(colours_.*colour, this, name);
        if (!chosen.isValid())
            return;
        SampleColours colours = colours_;
        colours.*colour = chosen;
        UseColours(colours);
    });
}

void TextPreview::UseColours(const SampleColours& colours)
{
    const bool isPreset = std::ranges::any_of(Presets(), [&colours](const auto& preset) {
        return preset.second.ink == colours.ink && preset.second.paper == colours.paper;
    });
    lastColours_.removeAll(colours);
    if (!isPreset)
        lastColours_.prepend(colours);
    lastColours_ = lastColours_.first(std::min(lastColours_.size(), MostLastColours));
    colours_ = colours;
    ShowColours();
}

void TextPreview::FillPresets()
{
    QMenu& menu = *presetsButton_->menu();
    menu.clear();
    const auto add = [&](const QString& text, const SampleColours& colours) {
        connect(menu.addAction(Sketch(colours), text), &QAction::triggered, this,
                [this, colours] { UseColours(colours); });
    };
    for (auto& [text, colours] : Presets()) {
        SampleColours preset = colours;
        preset.background = colours_.background;
        add(text, preset);
    }
    menu.addSeparator();
    for (const SampleColours& colours : std::as_const(lastColours_))
        add(tr("%1 on %2").arg(colours.ink.name(), colours.paper.name()), colours);
}

void TextPreview::ShowColours()
{
    QPixmap pixmap(16, 16);
    for (const auto& [button, colour] : {std::pair(inkButton_, colours_.ink),
                                         {paperButton_, colours_.paper},
                                         {backgroundButton_, colours_.background}}) {
        pixmap.fill(colour);
        button->setIcon(pixmap);
    }
    strip_->SetColours(colours_);
}

} // namespace Glyphor
