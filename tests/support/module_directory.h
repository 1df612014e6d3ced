#ifndef TESTS_SUPPORT_MODULE_DIRECTORY_H
#define TESTS_SUPPORT_MODULE_DIRECTORY_H

#include <filesystem>
#include <memory>
#include <string>

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace test_support
{
/// Puts a built module into a directory of the test's own.
inline std::filesystem::path put_module(const char* built, const std::filesystem::path& directory,
                                        const std::string& name)
{
    std::filesystem::create_directories(directory);
    std::filesystem::copy_file(built, directory / name);
    return directory / name;
}

/// What a recording module was asked. It keeps the module mapped, and so its record, when no robot does.
class module_record
{
public:
    explicit module_record(const std::filesystem::path& file) : library_(dlopen(file.c_str(), RTLD_NOW))
    {
        EXPECT_TRUE(library_) << dlerror();
    }

    /// The calls since this was asked last, with a ';' behind each.
    std::string calls()
    {
        const auto recorded = reinterpret_cast<const char* (*)()>(dlsym(library_.get(), "recorded_calls"));
        const std::string all = recorded();
        const std::string further = all.substr(seen_);
        seen_ = all.size();
        return further;
    }

private:
    struct closer
    {
        void operator()(void* library) const { dlclose(library); }
    };
    std::unique_ptr<void, closer> library_;
    std::size_t seen_ = 0;
};
} // namespace test_support

#endif
