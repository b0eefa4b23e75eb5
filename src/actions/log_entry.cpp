#include "actions/log_entry.h"

#include "app/engine_texts.h"
#include "app/settings.h"
#include "app/shown_text.h"

#include <QFileInfo>

namespace Glyphor {

namespace {

// How long the part is that tells what an entry is about, "[Font]: ", which has no language.
qsizetype PrefixLength(const QString& text)
{
    constexpr QStringView end = u"]: ";
    const qsizetype found = text.startsWith(u'[') ? text.indexOf(end) : -1;
    return found < 0 ? 0 : found + end.size();
}

} // namespace

LogEntry LogEntry::About(const QString& prefix) const
{
    LogEntry entry = *this;
    entry.prefix_ = prefix;
    return entry;
}

QString LogEntry::Filled(QString text) const
{
    for (const QString& argument : arguments_)
        text = text.arg(argument);
    return prefix_ + text;
}

QString LogEntry::Translated() const
{
    const QString english = QString::fromLatin1(text_);
    const QString translated = text_ != nullptr ? Engine::tr(text_) : QString();
    return Filled(english.left(PrefixLength(english)) + translated.mid(PrefixLength(translated)));
}

QString LoggedPath(const QString& path)
{
    return Shown(Settings::Instance().writePaths.value() ? path : QFileInfo(path).fileName());
}

} // namespace Glyphor
