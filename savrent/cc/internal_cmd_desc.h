#ifndef SAVRENT_CC_INTERNAL_CMD_DESC_H
#define SAVRENT_CC_INTERNAL_CMD_DESC_H

#include <array>
#include <cstddef>
#include <deque>
#include <mutex>
#include <vector>

namespace savrent::cc
{
/**
 * A queue of records of one type, with all records allocated beforehand.
 *
 * A sender takes a free record, fills it and puts it on the ring; a receiver takes it off. A ring that nobody drains
 * loses its oldest record when the free ones run out, so a sender is refused only while all records are in the hands
 * of other senders. Any thread.
 */
template <class T, std::size_t Capacity = 256>
class internal_cmd_desc
{
public:
    internal_cmd_desc()
    {
        for (T& record : records_)
            free_.push_back(&record);
    }
    internal_cmd_desc(const internal_cmd_desc&) = delete;
    internal_cmd_desc& operator=(const internal_cmd_desc&) = delete;

    [[nodiscard]] bool is_ready() const { return true; }

    /// A free record, or null when there is none.
    [[nodiscard]] T* take_free()
    {
        std::lock_guard lock(mutex_);
        if (free_.empty() && !pending_.empty())
        {
            free_.push_back(pending_.front());
            pending_.pop_front();
        }
        if (free_.empty())
            return nullptr;
        T* record = free_.back();
        free_.pop_back();
        return record;
    }

    /// Gives a record back unused.
    void give_back(T* record)
    {
        std::lock_guard lock(mutex_);
        free_.push_back(record);
    }

    void put(T* record)
    {
        std::lock_guard lock(mutex_);
        pending_.push_back(record);
    }

    /// Takes the oldest record off the ring; false when the ring is empty.
    bool get(T& out)
    {
        std::lock_guard lock(mutex_);
        if (pending_.empty())
            return false;
        out = *pending_.front();
        free_.push_back(pending_.front());
        pending_.pop_front();
        return true;
    }

private:
    std::mutex mutex_;
    std::array<T, Capacity> records_ = {};
    std::vector<T*> free_;
    std::deque<T*> pending_;
};
} // namespace savrent::cc

#endif
