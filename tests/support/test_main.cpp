#include "support/test_main.h"

#include "app/file_name.h"

#if __has_include(<QApplication>)
#include <QApplication>
#endif
#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

namespace Glyphor::Test {

namespace {

std::vector<std::function<std::unique_ptr<QObject>()>>& Registered()
{
    static std::vector<std::function<std::unique_ptr<QObject>()>> list;
    return list;
}

} // namespace

Registration::Registration(std::function<std::unique_ptr<QObject>()> make)
{
    Registered().push_back(std::move(make));
}

QString FontPath(const char* name)
{
    return QString::fromUtf8(TEST_FONTS "/") + QString::fromUtf8(name);
}

QString Document(const QString& path)
{
    return QString::fromUtf8(ReadAll(QStringLiteral(PROJECT_SOURCES "/") + path));
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteAll(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

void RemoveAll(const QString& directory)
{
    std::filesystem::remove_all(BytesOf(directory).toStdString());
}

} // namespace Glyphor::Test

// Runs every registered class, with settings of its own.
int main(int argc, char** argv)
{
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    for (const char* const place : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qputenv(place, settings.path().toLocal8Bit());
    const TEST_APPLICATION application(argc, argv);

    int failures = 0;
    for (const auto& make : Glyphor::Test::Registered())
        failures += QTest::qExec(make().get(), argc, argv);
    return failures == 0 ? 0 : 1;
}
