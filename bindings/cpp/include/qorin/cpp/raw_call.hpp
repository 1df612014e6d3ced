#ifndef QORIN_CPP_RAW_CALL_HPP
#define QORIN_CPP_RAW_CALL_HPP

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "qorin/cpp/call.hpp"

/// What the generated functions are written with.
namespace qorin::inline QORIN_LAYER::detail
{
/// So many elements come out; the C interface wants room for so many bytes.
template <class Element, std::size_t Count, std::size_t Room>
class output
{
public:
    [[nodiscard]] Element* data() { return elements_; }
    [[nodiscard]] const Element& operator[](std::size_t index) const { return elements_[index]; }
    [[nodiscard]] std::array<Element, Count> array() const
    {
        std::array<Element, Count> all;
        std::copy_n(elements_, Count, all.begin());
        return all;
    }
    [[nodiscard]] std::string text() const { return {elements_, std::find(elements_, elements_ + Count, '\0')}; }

private:
    Element elements_[std::max(Count, Room / sizeof(Element))] = {};
};

inline result<void> done(QORIN_API_RESULT code, std::string_view name)
{
    return code == QORIN_API_RESULT_OK ? result<void>() : result<void>(unexpected(error(code, name)));
}

inline result<std::string_view> text_or_none(const char* text, std::string_view name)
{
    if (text == nullptr)
        return unexpected(error(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, name));
    return std::string_view(text);
}

inline bool fit(std::size_t limit, std::initializer_list<std::size_t> sizes)
{
    return std::ranges::all_of(sizes, [&](std::size_t size) { return size <= limit && size == *sizes.begin(); });
}

inline unexpected misfit(std::string_view name)
{
    return unexpected(error(QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE, name));
}
} // namespace qorin::inline QORIN_LAYER::detail

#endif
