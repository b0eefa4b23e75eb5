#include "ui/preview/generation_preview.h"

#include "app/critical_exception.h"
#include "app/progress.h"
#include "app/user_interface.h"
#include "files/font_file_c.h"
#include "ui/preview/text_preview.h"
#include "ui/support/dialog_parts.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QVBoxLayout>

#include <functional>
#include <new>

namespace Glyphor {

namespace {

constexpr int ShowDelay = 120;   // milliseconds
constexpr qint64 TurnDelay = 15; // between two turns of the window

// Keeps the warnings of a rendering that is only a preview, and lets the window work meanwhile.
class PreviewInterface final : public UserInterface
{
public:
    // `isStopped` is asked now and then.
    explicit PreviewInterface(std::function<bool()> isStopped)
        : scope_(*this), isStopped_(std::move(isStopped))
    {
        sinceTurn_.start();
    }

    void warning(const QString&, const QString& text) override { notes.append(text); }
    void Lacking(const QString& text) override { notes.append(text); }
    void Hint(const QString& text) override { notes.append(text); }

    bool ProgressChanged(const QString&, int, int) override
    {
        if (sinceTurn_.elapsed() >= TurnDelay) {
            const InterfaceScope window(scope_.Previous());
            QCoreApplication::processEvents();
            sinceTurn_.start();
        }
        return !isStopped_();
    }

    QStringList notes;

private:
    InterfaceScope scope_;
    std::function<bool()> isStopped_;
    QElapsedTimer sinceTurn_;
};

// Sources give what their mappings name, whatever is selected; so here it is only what shows.
CharacterMap PartOf(const CharacterMap& map, const CodeSet& shown)
{
    CharacterMap part;
    for (const CodeMapping& mapping : map) {
        if (mapping.onlyMissing) {
            part.push_back(mapping);
            continue;
        }
        for (const quint16 code : shown) {
            const char32_t faceCode = mapping.first + (code - mapping.target);
            if (code >= mapping.target && faceCode <= mapping.last)
                part.push_back({faceCode, faceCode, code, false, mapping.name});
        }
    }
    return part;
}

} // namespace

GenerationPreview::GenerationPreview(QWidget* parent)
    : QWidget(parent),
      strip_(new TextStrip),
      lightStrip_(new TextStrip),
      field_(new QLineEdit),
      sizes_(PlainLabel()),
      notes_(PlainLabel())
{
    auto* const strips = new QWidget; // of one size, whatever they show
    auto* const stripLayout = new QVBoxLayout(strips);
    stripLayout->setContentsMargins(0, 0, 0, 0);
    stripLayout->setSpacing(0);
    for (TextStrip* const strip : {strip_, lightStrip_})
        stripLayout->addWidget(strip, 1);
    QScrollArea* const area = ScrollAreaOf(*strips);
    area->setMinimumSize(300, 130);
    for (TextStrip* const strip : {strip_, lightStrip_})
        strip->FitZoom();
    lightStrip_->SetColours({Qt::white, Qt::black});
    lightStrip_->setAccessibleName(tr("Sample, light on dark"));
    notes_->setWordWrap(true);
    sizes_->setWordWrap(true);
    for (QLabel* const label : {sizes_, notes_}) { // or the strips would jump
        label->setMinimumHeight(2 * label->fontMetrics().lineSpacing());
        label->setAlignment(Qt::AlignTop);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Row({LabelFor(*field_, tr("&Sample:")), field_}, field_));
    layout->addWidget(area, 1);
    layout->addWidget(sizes_);
    layout->addWidget(notes_);
    timer_.setSingleShot(true);
    timer_.setInterval(ShowDelay);
    connect(&timer_, &QTimer::timeout, this, &GenerationPreview::RenderFont);
    connect(field_, &QLineEdit::textChanged, this, [this](const QString& text) {
        strip_->SetText(text);
        lightStrip_->SetText(text);
        if (!args_.path.isEmpty())
            ShowFor(args_, wanted_);
    });
}

GenerationPreview::~GenerationPreview()
{
    ShowFont(nullptr);
}

QString GenerationPreview::Sample() const
{
    return field_->text();
}

void GenerationPreview::SetSample(const QString& sample)
{
    field_->setText(sample);
    field_->setCursorPosition(0);
}

void GenerationPreview::ShowFor(const ActionOpenFontArgs& args, const CodeSet& wanted)
{
    args_ = args;
    args_.render.findsLayoutKerning = false;
    wanted_ = wanted;
    isStale_ = true;
    timer_.start();
}

void GenerationPreview::ShowFault(const QString& fault)
{
    Stop();
    ShowFont(nullptr);
    sizes_->clear();
    notes_->setText(fault);
}

void GenerationPreview::Stop()
{
    timer_.stop();
    isStale_ = true;
}

void GenerationPreview::ShowFont(std::unique_ptr<Font> font)
{
    strip_->ShowFont(font.get());
    lightStrip_->ShowFont(font.get());
    font_ = std::move(font);
}

// The window has its turns in here, so this can come up again before it ends.
void GenerationPreview::RenderFont()
{
    if (isRendering_) {
        timer_.start();
        return;
    }
    const QScopedValueRollback rendering(isRendering_, true);
    isStale_ = false;
    try {
        RenderSample();
        RenderAll();
        Q_EMIT Finished();
    } catch (const WorkStopped&) {
        // Something else is to be shown.
    } catch (const CriticalException& error) {
        ShowFault(error.Text());
    } catch (const std::bad_alloc&) {
        ShowFault(tr("There is not enough memory."));
    }
}

void GenerationPreview::RenderSample()
{
    PreviewInterface interface([this] { return isStale_; });
    ActionOpenFontArgs args = args_;
    CodeSet codes;
    for (const QChar character : field_->text())
        codes.Set(character.unicode(), true);
    for (FontSource& source : args.sources)
        source.map = PartOf(source.map, codes);
    if (args.selection)
        codes &= *args.selection;
    args.selection = codes;
    ShowFont(ReadFont(args));
    sizes_->setText(
        tr("Line height: %1 px, em size: %2 px").arg(font_->Metrics().height).arg(EmSize(args)));
}

void GenerationPreview::RenderAll()
{
    PreviewInterface interface([this] { return isStale_; });
    std::unique_ptr<Font> all = ReadFont(args_);
    int count = 0;
    all->ForEachEnabled([&count](quint16, const Character&) { ++count; });
    sizes_->setText(tr("Line height: %1 px, em size: %2 px, characters: %L3, flash: %L4 bytes")
                        .arg(QString::number(all->Metrics().height), QString::number(EmSize(args_)))
                        .arg(count)
                        .arg(FlashSize(*all)));
    QStringList notes = interface.notes;
    if (count == 0)
        notes.append(tr("The font has none of these characters."));
    else if (const QString missing = MissingFrom(*all); !missing.isEmpty())
        notes.append(tr("Not in the font: %1").arg(missing));
    notes_->setText(notes.join(u'\n'));
    ShowFont(std::move(all)); // its line may be higher than that of the sample
}

// The first ones of the wanted characters that did not come out.
QString GenerationPreview::MissingFrom(const Font& font) const
{
    constexpr qsizetype most = 40;
    QString missing;
    for (const quint16 unicode : wanted_) {
        const auto code = Encoded(unicode, font.Metrics().encoding);
        if (QChar(unicode).isPrint() && (!code || font.FindChar(*code) == nullptr))
            missing.append(QChar(unicode));
        if (missing.size() == most)
            break;
    }
    return missing;
}

} // namespace Glyphor
