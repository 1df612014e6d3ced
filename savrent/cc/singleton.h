#ifndef SAVRENT_CC_SINGLETON_H
#define SAVRENT_CC_SINGLETON_H

#include <atomic>
#include <exception>
#include <iostream>
#include <memory>
#include <mutex>

#include "savrent/cc/immortal.h"

namespace savrent::cc
{
/**
 * Holder of a process-wide object that is made on first use.
 *
 * The mutex is taken only while the object is still missing. Neither the object nor the holder's pointer is destroyed
 * at process exit, for the sake of threads that still log then.
 */
template <class T>
class singleton
{
public:
    explicit singleton(const char* name) : name_(name) {}

    std::shared_ptr<T> get()
    {
        if (!made_.load(std::memory_order_acquire))
            make();
        return *instance_;
    }

private:
    void make()
    {
        std::lock_guard lock(instance_mutex_);
        if (made_.load(std::memory_order_relaxed))
            return;
        try
        {
            *instance_ = std::make_shared<T>();
        }
        catch (const std::exception& failure)
        {
            std::cerr << "[Critical] Memory allocation failed for " << name_ << ": " << failure.what() << std::endl;
            throw;
        }
        made_.store(true, std::memory_order_release);
    }

    const char* name_;
    std::mutex instance_mutex_;
    std::atomic<bool> made_ = false;
    immortal<std::shared_ptr<T>> instance_;
};
} // namespace savrent::cc

#endif
