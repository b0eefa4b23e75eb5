// Writes the completions of the command line for the shells.
//
// Usage: make_completions TEMPLATE.in... FOLDER
//
// Puts the options for @OPTIONS@ and their parameters for @PARAMETERS@; the templates have the
// rest.

#include "cli/command_line_option.h"
#include "files/file_types.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace Glyphor;
using namespace Qt::StringLiterals;

// How a shell writes the two lists.
struct Shell
{
    QString optionSeparator;
    QString (*optionLine)(const QString& name, const QString& description);
    QString (*parameterLines)(const QStringList& names, const QStringList& parameters);
};

// Without the suffixes' dots; none where any file fits.
QStringList FittingSuffixes(OptionId option)
{
    QStringList suffixes;
    if (option != OptionId::Open && option != OptionId::Merge && option != OptionId::Save)
        return suffixes;
    for (const FileTypeRow& row : FileTypeTable) {
        if ((option == OptionId::Merge && row.isScalable) ||
            (option == OptionId::Save && !row.isWritten))
            continue;
        for (const QLatin1StringView suffix : row.suffixes)
            suffixes.append(QString(suffix.sliced(1)));
    }
    return suffixes;
}

QString Fitting(const CommandLineOption& option, const CommandLineParameter& parameter)
{
    QStringList words;
    if (parameter.placeholder.contains(FilePlaceholder)) {
        words = QStringList{u"files"_s} + FittingSuffixes(option.id);
    } else {
        words.append(u"words"_s);
        if (parameter.kind == ParameterKind::Range)
            words.append(u"all"_s);
        if (parameter.keywords != nullptr) {
            for (const ParameterKeywordTable::Entry& entry : parameter.keywords->Entries()) {
                if (!entry.hidden)
                    words.append(entry.keyword);
            }
        }
    }
    const bool isOptional = !parameter.required || option.position >= 0;
    return (isOptional ? u"?"_s : QString()) + words.join(u' ');
}

QString Quoted(QString text)
{
    return u'\'' + text.replace(u"'"_s, u"'\\''"_s) + u'\'';
}

QStringList Quoted(const QStringList& texts)
{
    QStringList quoted;
    for (const QString& text : texts)
        quoted.append(Quoted(text));
    return quoted;
}

const Shell BashAndZsh = {u"\n"_s,
                          [](const QString& name, const QString& description) {
                              return u"    "_s + Quoted(name + u':' + description);
                          },
                          [](const QStringList& names, const QStringList& parameters) {
                              return u"        %1) parameters=(%2) ;;\n"_s.arg(
                                  Quoted(names).join(u" | "_s), Quoted(parameters).join(u' '));
                          }};

const Shell Fish = {u" \\\n"_s,
                    [](const QString& name, const QString& description) {
                        return u"        "_s + Quoted(QStringList{name, description}).join(u' ');
                    },
                    [](const QStringList& names, const QStringList& parameters) {
                        QString lines = u"        case %1\n"_s.arg(Quoted(names).join(u' ').replace(
                            u"?"_s, u"\\?"_s)); // a wildcard even in quotes
                        for (const QString& parameter : parameters)
                            lines += u"            echo %1\n"_s.arg(Quoted(parameter));
                        return lines;
                    }};

QString FirstSentence(const QString& text)
{
    static const QRegularExpression rest(u"\\.( [A-Z].*)?$"_s);
    return QString(text).remove(rest);
}

QByteArray Completed(QString text, const Shell& shell)
{
    QStringList options;
    QString parameters;
    for (const CommandLineOption& option : CommandLineOptions()) {
        if (option.description.isEmpty())
            continue;
        QStringList names;
        for (const QString& name : {option.longName, option.shortName}) {
            if (!name.isEmpty())
                names.append(u'-' + name);
        }
        if (names.isEmpty())
            names.append(QString());
        else
            options.append(shell.optionLine(names.first(), FirstSentence(option.description)));
        QStringList fitting;
        for (const CommandLineParameter& parameter : option.parameters)
            fitting.append(Fitting(option, parameter));
        parameters += shell.parameterLines(names, fitting);
    }
    text.replace(u"@OPTIONS@\n"_s, options.join(shell.optionSeparator) + u'\n');
    text.replace(u"@PARAMETERS@\n"_s, parameters);
    return text.toUtf8();
}

bool Write(const QString& templatePath, const QString& folder)
{
    const QString name = QFileInfo(templatePath).completeBaseName();
    QFile in(templatePath);
    QSaveFile out(folder + u'/' + name);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        return false;
    out.write(
        Completed(QString::fromUtf8(in.readAll()), name.endsWith(u".fish"_s) ? Fish : BashAndZsh));
    return out.commit();
}

} // namespace

int main(int argc, char** argv)
{
    const QString folder = QFile::decodeName(argv[argc - 1]);
    for (int index = 1; index < argc - 1; ++index) {
        if (!Write(QFile::decodeName(argv[index]), folder)) {
            std::fprintf(stderr, "%s can't be turned into a completion.\n", argv[index]);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
