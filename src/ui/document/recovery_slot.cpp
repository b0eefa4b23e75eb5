#include "ui/document/recovery_slot.h"

#include "app/critical_exception.h"
#include "app/shown_text.h"
#include "files/font_file_sif.h"
#include "ui/document/file_lock.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStandardPaths>

#include <functional>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 StateMagic = 0x47594B31;
constexpr auto StreamVersion = QDataStream::Qt_6_0;

constexpr auto LockSuffix = ".lock"_L1;
constexpr auto FontSuffix = ".sif"_L1;
constexpr auto StateSuffix = ".state"_L1; // written last: with it the copy is whole

QDataStream& operator<<(QDataStream& out, const KeptSession& session)
{
    const FileStamp stamp = session.stamp.value_or(FileStamp{});
    return out << session.path << session.stamp.has_value() << stamp.size << stamp.modified
               << stamp.number << session.log << session.fontName << session.time;
}

QDataStream& operator>>(QDataStream& in, KeptSession& session)
{
    bool hasStamp = false;
    FileStamp stamp;
    in >> session.path >> hasStamp >> stamp.size >> stamp.modified >> stamp.number >> session.log >>
        session.fontName >> session.time;
    session.stamp = hasStamp ? std::optional(stamp) : std::nullopt;
    return in;
}

// Stream of a state behind its head, which has the encoding.
std::optional<EncodingType> ReadHead(QDataStream& in, KeptSession& session)
{
    quint32 magic = 0;
    quint8 encoding = 0;
    in.setVersion(StreamVersion);
    in >> magic;
    if (magic != StateMagic)
        return std::nullopt;
    in >> encoding >> session;
    const bool isRead = in.status() == QDataStream::Ok && encoding <= 1;
    return isRead ? std::optional(static_cast<EncodingType>(encoding)) : std::nullopt;
}

// Empty where the file was written, or why not.
QString WriteWhole(const QString& path, const std::function<void(QIODevice&)>& write)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    write(file);
    return file.commit() ? QString() : file.errorString();
}

} // namespace

RecoverySlot::RecoverySlot(const QString& folder, const QString& id, std::unique_ptr<FileLock> lock)
    : folder_(folder), id_(id), lock_(std::move(lock))
{}

RecoverySlot::~RecoverySlot() = default;

QString RecoverySlot::DefaultFolder()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    QString states = qEnvironmentVariable("XDG_STATE_HOME");
    if (!states.startsWith(u'/'))
        states = QDir::homePath() + u"/.local/state"_s;
#else
    const QString states = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#endif
    return states + u"/Glyphor/recovery"_s;
}

std::unique_ptr<RecoverySlot> RecoverySlot::Create(const QString& folder)
{
    const QFileInfo info(folder);
    constexpr auto own = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!info.isDir() && (!QDir().mkpath(info.path()) || !QDir().mkdir(folder, own)))
        return nullptr;
    constexpr int attempts = 8;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const QString id = QString::number(QRandomGenerator::system()->generate64(), 16);
        const QString path = folder + u'/' + id + LockSuffix;
        if (QFile::exists(path))
            continue;
        if (auto lock = FileLock::Take(path))
            return std::unique_ptr<RecoverySlot>(new RecoverySlot(folder, id, std::move(lock)));
    }
    return nullptr;
}

std::vector<std::unique_ptr<RecoverySlot>> RecoverySlot::Abandoned(const QString& folder)
{
    std::vector<std::unique_ptr<RecoverySlot>> slots;
    const QDir directory(folder);
    for (const QString& name : directory.entryList({u'*' + LockSuffix}, QDir::Files)) {
        auto lock = FileLock::Take(directory.filePath(name));
        if (lock == nullptr)
            continue;
        const QString id = name.chopped(LockSuffix.size());
        std::unique_ptr<RecoverySlot> slot(new RecoverySlot(folder, id, std::move(lock)));
        if (slot->Recall())
            slots.push_back(std::move(slot));
        else if (slot->Files("-*"_L1 + StateSuffix).isEmpty())
            slot->Discard(); // it ended before it had kept anything
    }
    return slots;
}

QStringList RecoverySlot::Files(const QString& pattern) const
{
    return QDir(folder_).entryList({id_ + pattern}, QDir::Files);
}

QString RecoverySlot::PathOf(int number, QLatin1StringView suffix) const
{
    return u"%1/%2-%3"_s.arg(folder_, id_, QString::number(number)) + suffix;
}

// Takes the latest copy that is whole.
bool RecoverySlot::Recall()
{
    for (const QString& name : Files("-*"_L1 + StateSuffix)) {
        const int number =
            QStringView(name).chopped(StateSuffix.size()).mid(id_.size() + 1).toInt();
        QFile file(PathOf(number, StateSuffix));
        KeptSession session;
        if (number <= number_ || !QFile::exists(PathOf(number, FontSuffix)) ||
            !file.open(QIODevice::ReadOnly))
            continue;
        QDataStream in(&file);
        if (!ReadHead(in, session))
            continue;
        number_ = number;
        session_ = session;
    }
    return number_ > 0;
}

QString RecoverySlot::Keep(const FontCopy& font, const KeptSession& session)
{
    const int number = number_ + 1;
    const std::unique_ptr<Font> whole = font.WithAllCharacters();
    QString failure = WriteWhole(PathOf(number, FontSuffix), [&](QIODevice& file) {
        FontFileSIF::Compose(
            *whole, [&file](QByteArrayView bytes) { file.write(bytes.data(), bytes.size()); });
    });
    if (failure.isEmpty())
        failure = WriteWhole(PathOf(number, StateSuffix), [&](QIODevice& file) {
            QDataStream out(&file);
            out.setVersion(StreamVersion);
            out << StateMagic << quint8(whole->Metrics().encoding) << session;
            font.WriteRest(out);
        });
    if (failure.isEmpty()) {
        number_ = number;
        session_ = session;
    }
    RemoveCopies(number_);
    return failure;
}

std::unique_ptr<Font> RecoverySlot::ReadFont() const
{
    const auto fail = [this] {
        throw CriticalException(
            QCoreApplication::translate("Glyphor::Recovery", "The kept copy of %1 is damaged.")
                .arg(Shown(session_.path)));
    };
    QFile state(PathOf(number_, StateSuffix));
    if (!state.open(QIODevice::ReadOnly))
        fail();
    QDataStream in(&state);
    KeptSession session;
    const auto encoding = ReadHead(in, session);
    if (!encoding)
        fail();
    auto font = FontFileSIF(PathOf(number_, FontSuffix), {std::nullopt, encoding}).Read();
    if (!ReadRest(in, *font))
        fail();
    return font;
}

void RecoverySlot::Discard()
{
    RemoveCopies(0);
    if (lock_ != nullptr)
        lock_->RemoveFile();
    lock_.reset();
    number_ = 0;
    QDir().rmdir(folder_); // where it is empty
}

// States first: a font without one is no copy.
void RecoverySlot::RemoveCopies(int except) const
{
    const QString kept = except > 0 ? u"%1-%2."_s.arg(id_, QString::number(except)) : QString();
    for (const QString& pattern : {QString("-*"_L1 + StateSuffix), u"-*"_s}) {
        for (const QString& name : Files(pattern)) {
            if (kept.isEmpty() || !name.startsWith(kept))
                QFile::remove(folder_ + u'/' + name);
        }
    }
}

} // namespace Glyphor
