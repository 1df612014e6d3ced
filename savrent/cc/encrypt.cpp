#include "savrent/cc/encrypt.h"

#include <string_view>

namespace savrent::cc
{
namespace
{
/// Not a secret: it keeps casual readers and accidental edits out of the logs, no more.
constexpr std::string_view key = "7d0c52e4-91ab-4f3e-8b66-2ad9c1f0375e";
static_assert(key.size() == 36);
} // namespace

void encrypt(const char* in, char* out, unsigned long length)
{
    encrypt_piece(in, out, length, 0);
}

void encrypt_piece(const char* in, char* out, unsigned long length, unsigned long position)
{
    // Every byte of both logs passes here: the place in the key is counted, since a division a byte would be the
    // dearest part of a call line.
    unsigned long place = position % key.size();
    for (unsigned long i = 0; i < length; ++i)
    {
        out[i] = static_cast<char>(key[place] ^ in[i]);
        place = place + 1 == key.size() ? 0 : place + 1;
    }
}
} // namespace savrent::cc
