#ifndef SAVRENT_CC_IMMORTAL_H
#define SAVRENT_CC_IMMORTAL_H

#include <cstddef>
#include <new>
#include <utility>

namespace savrent::cc
{
/**
 * A process-wide object that is made with its variable and never destroyed.
 *
 * Receive threads and blocked callers may still write log lines while the process ends. What they touch then must
 * outlive every static destructor.
 */
template <class T>
class immortal
{
public:
    template <class... Args>
    explicit immortal(Args&&... args)
    {
        ::new (static_cast<void*>(storage_)) T(std::forward<Args>(args)...);
    }
    immortal(const immortal&) = delete;
    immortal& operator=(const immortal&) = delete;

    T& operator*() { return *std::launder(reinterpret_cast<T*>(storage_)); }
    T* operator->() { return &**this; }

private:
    alignas(T) std::byte storage_[sizeof(T)];
};

template <class T>
explicit immortal(T) -> immortal<T>;
} // namespace savrent::cc

#endif
