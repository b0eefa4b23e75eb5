#include "cli/installed_fonts.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "render/font_database.h"

#include <QEventLoop>

#include <algorithm>
#include <memory>
#include <numeric>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The database, built in the background while the progress is shown here.
std::shared_ptr<const FontDatabase> BuiltDatabase()
{
    if (auto database = FontDatabase::Current(); !database->Families().empty())
        return database;
    QEventLoop loop;
    const Settings& settings = Settings::Instance();
    FontDatabaseThread thread(settings.additionalFontDirs.value(),
                              settings.searchDirsRecursively.value());
    std::unique_ptr<Progress> progress;
    QObject::connect(&thread, &FontDatabaseThread::initFileCount, &loop, [&progress](int count) {
        progress = std::make_unique<Progress>(Engine::tr("Indexing font files..."), count);
    });
    bool isStopped = false;
    QObject::connect(&thread, &FontDatabaseThread::fileDone, &loop, [&](int done) {
        try { // nothing may be thrown through the loop
            if (!isStopped)
                progress->SetValue(done);
        } catch (const WorkStopped&) {
            isStopped = true;
            thread.requestInterruption();
        }
    });
    QObject::connect(&thread, &FontDatabaseThread::hasFinished, &loop, &QEventLoop::quit);
    thread.start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    thread.wait();
    if (isStopped)
        throw WorkStopped();
    return FontDatabase::Current();
}

// Names come from fonts; none may break a line of the table or command the terminal.
QString Printable(QString name)
{
    for (QChar& character : name) {
        if (!character.isPrint() && !character.isSurrogate())
            character = u' ';
    }
    return name;
}

QString StylesOf(const FontFamily& family)
{
    return Printable(family.StyleNames().join(u", "_s));
}

// How many letters have to be inserted, deleted or replaced to get from one name to the other.
qsizetype EditDistance(const QString& from, const QString& to)
{
    std::vector<qsizetype> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool isSame = from[i].toLower() == to[qsizetype(j) - 1].toLower();
            const qsizetype replaced = diagonal + (isSame ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row.back();
}

// The names most like the given one, the likest first.
QStringList Nearest(QStringList names, const QString& name)
{
    constexpr qsizetype shown = 3;
    std::ranges::stable_sort(names, {},
                             [&name](const QString& other) { return EditDistance(name, other); });
    return names.first(std::min(shown, names.size()));
}

} // namespace

InstalledFont FindInstalledFont(const QString& family, const QString& style)
{
    const auto database = BuiltDatabase();
    const FontFamily* const found = database->Find(family);
    if (found != nullptr && !found->Path(style).isEmpty())
        return {found->Path(style), found->FaceIndex(style)};

    QString hint;
    if (found != nullptr) {
        hint = Engine::tr("Its styles are: %1").arg(StylesOf(*found));
    } else {
        QStringList families;
        for (const auto& other : database->Families())
            families.append(Printable(other->Name()));
        hint = families.isEmpty() ? Engine::tr("There are no fonts in the font directories.")
                                  : Engine::tr("Families with a similar name: %1")
                                        .arg(Nearest(families, family).join(u", "_s));
    }
    throw CriticalException(
        Engine::tr("Font %1 %2 could not be found!").arg(Shown(family), Shown(style)) + u'\n' +
        hint);
}

QString InstalledFontTable()
{
    const auto database = BuiltDatabase();
    const QString heading = u"Font family"_s;
    qsizetype width = heading.size();
    for (const auto& family : database->Families())
        width = std::max(width, family->Name().size());
    const auto row = [width](const QString& name, const QString& styles) {
        return name.leftJustified(width + 2) + styles + u'\n';
    };
    QString table = row(heading, u"Styles"_s);
    for (const auto& family : database->Families())
        table += row(Printable(family->Name()), StylesOf(*family));
    return table;
}

} // namespace Glyphor
