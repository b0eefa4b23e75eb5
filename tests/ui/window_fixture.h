#pragma once

#include "actions/session.h"
#include "app/user_interface.h"
#include "files/font_file_sif.h"
#include "support/sample_font.h"
#include "ui/document/document.h"
#include "ui/support/undo_stack.h"
#include "ui/table/character_table.h"
#include "ui/window/main_window.h"
#include "ui/window/menu_bar.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace Glyphor::Test {

// Has the next dialog of a kind answered.
template <typename Dialog>
class DialogAnswer
{
public:
    explicit DialogAnswer(const std::function<void(Dialog&)>& answer)
    {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this, answer] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            timer_.stop();
            wasAsked = true;
            answer(*dialog);
            if (dialog->isVisible()) // what failed must not wait for ever
                dialog->reject();
        });
        timer_.start();
    }

    bool wasAsked = false;

private:
    QTimer timer_;
};

// Answers the next box with a button, and tells its title and text.
class BoxAnswer : public DialogAnswer<QMessageBox>
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
        : DialogAnswer([this, button](QMessageBox& box) {
              text = box.windowTitle() + QStringLiteral(": ") + box.text();
              box.button(button)->click();
          })
    {}

    QString text;
};

// Answers all boxes with a button where they have it, and else with OK, and keeps their texts.
class BoxAnswers
{
public:
    explicit BoxAnswers(QMessageBox::StandardButton button)
    {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this, button] {
            const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            texts.append(box->text());
            auto* const answer = box->button(button);
            (answer != nullptr ? answer : box->button(QMessageBox::Ok))->click();
        });
        timer_.start();
    }

    QStringList texts;

private:
    QTimer timer_;
};

// Enters a name in a file dialog. The file that it proposes is selected as soon as the folder was
// read, and would go before what is typed.
inline void Choose(QFileDialog& dialog, const QString& name, const QTemporaryDir& folder)
{
    dialog.setDirectory(folder.path());
    dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"))->clearSelection();
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    QMetaObject::invokeMethod(&dialog, "accept");
}

// A window with its session, and a folder for files.
class WindowFixture
{
protected:
    void OpenWindow()
    {
        history_ = std::make_unique<UndoStack>();
        session_ = std::make_unique<Session>(*history_);
        window_ = std::make_unique<MainWindow>(*session_, *history_);
        SetCurrentInterface(window_.get());
        window_->show();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void CloseWindow()
    {
        SetCurrentInterface(nullptr);
        window_.reset();
        session_.reset();
    }

    [[nodiscard]] QString Path(const char* name) const
    {
        return folder_.filePath(QString::fromUtf8(name));
    }

    [[nodiscard]] bool Open(const QString& path) const
    {
        return window_->CurrentDocument().OpenFile(path);
    }

    void OpenSample(FontFormat format = FontFormat::AA2) const
    {
        WriteSample(format, Path("sample.sif"));
        QVERIFY(Open(Path("sample.sif")));
        window_->Table().SelectCode('A');
    }

    static void WriteSample(FontFormat format, const QString& path)
    {
        FontFileSIF(path).Write(*MakeSampleFont(format));
    }

    template <typename Command>
    [[nodiscard]] bool IsEnabled(Command command) const
    {
        return window_->Menus().Command(command)->isEnabled();
    }

    template <typename Command>
    void Trigger(Command command) const
    {
        window_->Menus().Command(command)->trigger();
    }

    [[nodiscard]] Font& CurrentFont() const { return *session_->CurrentFont(); }

    QTemporaryDir folder_;
    std::unique_ptr<UndoStack> history_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<MainWindow> window_;
};

} // namespace Glyphor::Test
