#include "ui/document/font_indexer.h"

#include "app/settings.h"
#include "render/font_database.h"

#include <utility>

namespace Glyphor {

FontIndexer::~FontIndexer()
{
    if (thread_ == nullptr)
        return;
    disconnect(thread_, nullptr, this, nullptr);
    Stop();
    thread_->wait();
}

bool FontIndexer::HasBegun() const
{
    return IsIndexing() || !FontDatabase::Current()->Families().empty();
}

void FontIndexer::Start()
{
    if (thread_ != nullptr) { // with the directories that were set when it began
        startsAgain_ = true;
        return Stop();
    }
    const Settings& settings = Settings::Instance();
    thread_ = new FontDatabaseThread(settings.additionalFontDirs.value(),
                                     settings.searchDirsRecursively.value(), this);
    connect(thread_, &FontDatabaseThread::initFileCount, this, &FontIndexer::Counted);
    connect(thread_, &FontDatabaseThread::fileDone, this, &FontIndexer::FileDone);
    connect(thread_, &FontDatabaseThread::hasFinished, this, &FontIndexer::End);
    connect(thread_, &QThread::finished, thread_, &QObject::deleteLater);
    thread_->start();
}

void FontIndexer::Stop()
{
    if (thread_ != nullptr)
        thread_->requestInterruption();
}

void FontIndexer::End()
{
    thread_->wait();
    thread_ = nullptr;
    Q_EMIT Ended();
    if (std::exchange(startsAgain_, false))
        Start();
    else
        Q_EMIT Indexed();
}

} // namespace Glyphor
