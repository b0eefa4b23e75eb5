#include "ui/window/help.h"

#include "app/user_interface.h"
#include "app/version.h"
#include "cli/command_line_parser.h"
#include "render/free_type_library.h"
#include "ui/dialogs/text_dialog.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

struct Help
{
    Q_DECLARE_TR_FUNCTIONS(Help)
};

} // namespace

// Installed, or in the sources that the folder of the build stands in.
QUrl ManualUrl()
{
    for (const QString& folder :
         {QStringLiteral(GLYPHOR_MANUAL_FOLDER), u"../docs/manual"_s, u"../../docs/manual"_s}) {
        const QFileInfo manual(QCoreApplication::applicationDirPath() + u'/' + folder +
                               u"/index.html"_s);
        if (manual.isFile())
            return QUrl::fromLocalFile(manual.canonicalFilePath());
    }
    return QUrl(u"https://morvek.example.com/glyphor"_s);
}

void ShowManual()
{
    const QUrl manual = ManualUrl();
    if (!QDesktopServices::openUrl(manual))
        CurrentInterface().information(
            Help::tr("User manual"),
            Help::tr("No web browser could be started. The manual is here:\n%1")
                .arg(manual.toDisplayString(QUrl::PreferLocalFile)));
}

void ShowAbout(QWidget* parent)
{
    FT_Int major = 0;
    FT_Int minor = 0;
    FT_Int patch = 0;
    FT_Library_Version(FreeTypeLibrary().Get(), &major, &minor, &patch);
    QMessageBox::about(
        parent, Help::tr("About %1").arg(QString(Program::Name)),
        Help::tr("<h3>%1 %2</h3><p>Bitmap fonts for embedded displays.</p><p>Qt %3, FreeType "
                 "%4</p><p>© Morvek</p>")
            .arg(QString(Program::Name), QString(Program::Version), QString::fromLatin1(qVersion()),
                 u"%1.%2.%3"_s.arg(major).arg(minor).arg(patch)));
}

void ShowCommandLineOptions(QWidget* parent)
{
    CommandDialog(CommandLineParser().usage(), parent).exec();
}

} // namespace Glyphor
