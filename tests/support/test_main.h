#pragma once

#include "app/user_interface.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace Glyphor {

// For all tests.
using namespace Qt::StringLiterals;

} // namespace Glyphor

namespace Glyphor::Test {

// Registers a test class for the test program's main().
class Registration
{
public:
    explicit Registration(std::function<std::unique_ptr<QObject>()> make);
};

#define GLYPHOR_TEST(Class)                                                                        \
    static const ::Glyphor::Test::Registration registration##Class(                                \
        [] { return std::make_unique<Class>(); });

// Is the current interface for as long as it lives and remembers what it is told.
class RecordingInterface : public UserInterface
{
public:
    RecordingInterface() { SetCurrentInterface(this); }
    ~RecordingInterface() override { SetCurrentInterface(nullptr); }

    void warning(const QString&, const QString& text) override { warnings.append(text); }
    bool actionPerformed(const std::shared_ptr<Action>& action, const QString& logText) override
    {
        performed.append(logText);
        return action != nullptr;
    }
    void Lacking(const QString& text) override { lacking.append(text); }
    void PartlyDone(const QString& text) override { shortfalls.append(text); }
    void ActionChanged(const std::shared_ptr<Action>&) override { ++changes; }

    QStringList warnings;
    QStringList lacking;
    QStringList shortfalls;
    QStringList performed;
    int changes = 0;
};

// A file that comes with the tests or is made for them.
[[nodiscard]] QString FontPath(const char* name);

// A document of the project, with its path in it.
[[nodiscard]] QString Document(const QString& path);

// The words between blanks.
[[nodiscard]] inline QStringList Words(const QString& line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}

[[nodiscard]] QByteArray ReadAll(const QString& path);
void WriteAll(const QString& path, const QByteArray& contents);

// Removes a directory with files that the toolkit can't name and so leaves behind.
void RemoveAll(const QString& directory);

} // namespace Glyphor::Test
