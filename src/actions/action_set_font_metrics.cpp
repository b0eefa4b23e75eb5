#include "actions/action_set_font_metrics.h"

#include "app/engine_texts.h"
#include "app/shown_text.h"

#include <limits>

namespace Glyphor {

namespace {

const char* LogOf(FontMetric metric)
{
    switch (metric) {
    case FontMetric::Height:
        return QT_TRANSLATE_NOOP("Engine", "[Font]: Height set to %1.");
    case FontMetric::Baseline:
        return QT_TRANSLATE_NOOP("Engine", "[Font]: Baseline set to %1.");
    case FontMetric::LowercaseHeight:
        return QT_TRANSLATE_NOOP("Engine", "[Font]: Height of lowercase characters set to %1.");
    case FontMetric::CapitalHeight:
        return QT_TRANSLATE_NOOP("Engine", "[Font]: Height of capital characters set to %1.");
    }
    return nullptr;
}

void SetMetric(Font& font, FontMetric metric, quint8 value)
{
    const FontMetrics& metrics = font.Metrics();
    switch (metric) {
    case FontMetric::Height:
        return font.ChangeHeight(value);
    case FontMetric::Baseline:
        return font.SetBaseline(value);
    case FontMetric::LowercaseHeight:
        return font.SetReferenceHeights(value, metrics.capitalHeight);
    case FontMetric::CapitalHeight:
        return font.SetReferenceHeights(metrics.lowercaseHeight, value);
    }
}

CharacterSwap CopiesOf(const Font& font)
{
    CharacterSwap copies;
    copies.SetEnabledCodes(font.EnabledCodes());
    for (const quint16 code : font.ExistingCodes())
        copies.Put(code, CopyOf(*font.FindChar(code), font.Metrics()));
    return copies;
}

} // namespace

int MetricOf(const Font& font, FontMetric metric)
{
    const FontMetrics& metrics = font.Metrics();
    switch (metric) {
    case FontMetric::Height:
        return metrics.height;
    case FontMetric::Baseline:
        return metrics.baseline;
    case FontMetric::LowercaseHeight:
        return metrics.lowercaseHeight;
    case FontMetric::CapitalHeight:
        return metrics.capitalHeight;
    }
    return 0;
}

// The pixels of a legacy character must not vanish.
int LeastOf(const Font& font, FontMetric metric)
{
    return metric == FontMetric::Height && IsLegacyFormat(font.Metrics().format) ? 1 : 0;
}

bool ActionSetFontMetrics::Execute()
{
    const Font* const font = CurrentFont();
    return font != nullptr && value_ != MetricOf(*font, metric_) &&
           value_ >= LeastOf(*font, metric_) && value_ <= std::numeric_limits<quint8>::max();
}

void ActionSetFontMetrics::RedoOnce()
{
    Font& font = *CurrentFont();
    previous_ = MetricOf(font, metric_);
    if (metric_ == FontMetric::Height && value_ < previous_ &&
        IsLegacyFormat(font.Metrics().format))
        whole_ = CopiesOf(font);
    SetMetric(font, metric_, static_cast<quint8>(value_));
}

void ActionSetFontMetrics::UndoOnce()
{
    Font& font = *CurrentFont();
    SetMetric(font, metric_, static_cast<quint8>(previous_));
    if (whole_)
        whole_->SwapWith(font);
    whole_.reset();
}

LogEntry ActionSetFontMetrics::Log() const
{
    return LogEntry(LogOf(metric_), {QString::number(value_)});
}

bool ActionSetFontName::Execute()
{
    told_ = name_;
    return CurrentFont() != nullptr && !name_.isEmpty() && name_ != CurrentFont()->Name();
}

void ActionSetFontName::RedoOnce()
{
    const QString previous = CurrentFont()->Name();
    CurrentFont()->SetName(name_);
    name_ = previous;
}

LogEntry ActionSetFontName::Log() const
{
    return LogEntry(QT_TRANSLATE_NOOP("Engine", "[Font]: Name set to %1."), {Shown(told_)});
}

} // namespace Glyphor
