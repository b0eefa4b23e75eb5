#include "support/c_files.h"
#include "support/program.h"
#include "support/test_main.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

// Debian's package fonts-materialdesignicons-webfont.
constexpr auto IconFont = "/usr/share/fonts/truetype/materialdesignicons-webfont/"
                          "materialdesignicons-webfont.ttf";

constexpr auto Drawing = R"(
#include "draw.h"
#include "ui.h"
#include <stdio.h>

extern GUI_CONST_STORAGE GUI_FONT GUI_FontUiIcon;

enum { Width = 240, Height = 40 };

static U8 display[Height][Width];

void PutPixel(int x, int y, unsigned coverage)
{
    if (x >= 0 && x < Width && y >= 0 && y < Height)
        display[y][x] = (U8)coverage;
}

int main(void)
{
    int end = DrawText(&GUI_FontUiIcon, 4, 4, UI_ICON_THERMOMETER_UTF8 "21 °C " UI_ICON_HEART_UTF8
                       "Ag " UI_ICON_WIFI_UTF8 " " UI_ICON_LOGO_UTF8);
    end = DrawChar(&GUI_FontUiIcon, end, 4, UI_ICON_ALARM);
    printf("P2\n%d %d\n255\n", Width, Height);
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            printf("%d%c", 255 - display[y][x], x < Width - 1 ? ' ' : '\n');
    return end > Width;
}
)";

} // namespace

// Text, icons of a font of icons and a picture in one font, as firmware draws them by their names.
class TestIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Draws()
    {
        if (!QFileInfo::exists(QString::fromUtf8(IconFont)))
            QSKIP("fonts-materialdesignicons-webfont is not installed");
        const QTemporaryDir folder;
        const auto path = [&folder](const QString& name) { return folder.filePath(name); };
        QStringList arguments = Test::Words(
            u"SYSTEM/DejaVuSans.ttf -hide -strict -defaults -set WritePaths=false -height 26px "
            "-format AA4 -enable 0x20-0x7E -enable 0xB0 -fit -source ICONS "
            "0xF2D1=0xE001,0xF50F=0xE002,0xF5A9=0xE003:wifi,0xF020 em:20px "
            "-image PROJECT/packaging/icons/24.png 0xE010:Logo -4 -name UiIcon -save ui.c -header "
            "ui.h"_s);
        for (QString& argument : arguments)
            argument.replace(u"SYSTEM"_s, QStringLiteral(SYSTEM_FONTS))
                .replace(u"ICONS"_s, QString::fromUtf8(IconFont))
                .replace(u"PROJECT"_s, QStringLiteral(PROJECT_SOURCES));
        const auto made =
            Test::RunProgram(folder.path(), QStringLiteral(GLYPHOR_PROGRAM), arguments);
        QCOMPARE(made.errors, QString());
        Test::WriteAll(path(u"main.c"_s), Drawing);
        QCOMPARE(Test::Compile(folder.path(),
                               {path(u"main.c"_s), path(u"ui.c"_s),
                                QStringLiteral(PROJECT_SOURCES "/docs/examples/firmware/draw.c"),
                                u"-o"_s, path(u"draw"_s)}),
                 QByteArray());
        const QByteArray drawn = Test::OutputOf(path(u"draw"_s), {});
        const QString kept = QStringLiteral(TEST_SOURCES "/house/icons.pgm");
        if (qEnvironmentVariableIsSet("GLYPHOR_RENEW_GOLDEN"))
            Test::WriteAll(kept, drawn);
        QCOMPARE(drawn, Test::ReadAll(kept));
    }
};

GLYPHOR_TEST(TestIcons)

} // namespace Glyphor

#include "tst_icons.moc"
