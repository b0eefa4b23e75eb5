#pragma once

#include "render/free_type_face.h"

#include <QElapsedTimer>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <span>
#include <system_error>
#include <thread>
#include <vector>

namespace Glyphor {

// Does work for each of many glyphs on several threads, each with a face of its own, and hands the
// results over on the calling thread, in the order of the glyphs. What takes only milliseconds
// stays on the calling thread.
template <typename Result>
class GlyphJobs
{
public:
    using Work = std::function<Result(const FreeTypeFace&, FT_UInt)>;
    using Take = std::function<void(std::size_t, Result&)>;

    // `work` must be safe to call from any thread. With 0 threads there are as many as cores.
    GlyphJobs(const FreeTypeFace& face, std::span<const FT_UInt> glyphs, int threads, Work work)
        : face_(face),
          glyphs_(glyphs),
          threads_(threads > 0 ? threads : static_cast<int>(std::thread::hardware_concurrency())),
          work_(std::move(work)),
          chunks_((glyphs.size() + ChunkSize - 1) / ChunkSize)
    {}

    ~GlyphJobs()
    {
        next_ = chunks_.size();
        for (std::thread& helper : helpers_)
            helper.join();
    }
    GlyphJobs(const GlyphJobs&) = delete;
    GlyphJobs& operator=(const GlyphJobs&) = delete;

    // Throws what the work throws, or taking a result, after which nothing more is taken.
    void Run(const Take& take)
    {
        QElapsedTimer timer;
        timer.start();
        for (std::size_t index = 0; index < chunks_.size(); ++index) {
            while (!IsDone(index)) {
                if (!DoNextChunk(face_))
                    WaitFor(index);
            }
            TakeChunk(index, take);
            if (helpers_.empty() && threads_ > 1 && index > 0)
                StartHelpers(timer.nsecsElapsed() / qint64(index + 1), index);
        }
    }

private:
    static constexpr std::size_t ChunkSize = 32;

    struct Chunk
    {
        std::vector<Result> results;
        std::exception_ptr failure;
        bool isDone = false; // guarded by the mutex
    };

    bool IsDone(std::size_t index)
    {
        const std::lock_guard lock(mutex_);
        return chunks_[index].isDone;
    }

    void WaitFor(std::size_t index)
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return chunks_[index].isDone; });
    }

    void TakeChunk(std::size_t index, const Take& take)
    {
        Chunk& chunk = chunks_[index];
        if (chunk.failure)
            std::rethrow_exception(chunk.failure);
        for (std::size_t i = 0; i < chunk.results.size(); ++i)
            take(index * ChunkSize + i, chunk.results[i]);
        chunk.results = std::vector<Result>();
    }

    // False where none is left.
    bool DoNextChunk(const FreeTypeFace& face)
    {
        const std::size_t index = next_++;
        if (index >= chunks_.size())
            return false;
        Chunk& chunk = chunks_[index];
        try {
            const auto glyphs = glyphs_.subspan(
                index * ChunkSize, std::min(ChunkSize, glyphs_.size() - index * ChunkSize));
            chunk.results.reserve(glyphs.size());
            for (const FT_UInt glyph : glyphs)
                chunk.results.push_back(work_(face, glyph));
        } catch (...) {
            chunk.failure = std::current_exception();
        }
        {
            const std::lock_guard lock(mutex_);
            chunk.isDone = true;
        }
        changed_.notify_one();
        return true;
    }

    // A thread has to open the face again, which is worth it only where much is left to do.
    void StartHelpers(qint64 nanosecondsPerChunk, std::size_t lastDone)
    {
        constexpr qint64 worthAThread = 10'000'000;
        const qint64 left = nanosecondsPerChunk * qint64(chunks_.size() - lastDone - 1);
        if (left < worthAThread || !face_.HasOutlines())
            return;
        try {
            for (int index = 1; index < threads_; ++index)
                helpers_.emplace_back([this, open = face_.Opener()] { Help(open); });
        } catch (const std::system_error&) {
            threads_ = 1; // those that there are have to do
        }
    }

    void Help(const std::function<FreeTypeFace(FontLibrary&)>& open)
    {
        FontLibrary library;
        const FreeTypeFace face = open(library);
        while (face.IsOpen() && DoNextChunk(face)) {
        }
    }

    const FreeTypeFace& face_;
    std::span<const FT_UInt> glyphs_;
    int threads_;
    Work work_;
    std::vector<Chunk> chunks_;
    std::atomic<std::size_t> next_ = 0; // chunk that nobody has begun
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::thread> helpers_;
};

} // namespace Glyphor
