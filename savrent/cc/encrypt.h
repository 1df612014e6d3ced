#ifndef SAVRENT_CC_ENCRYPT_H
#define SAVRENT_CC_ENCRYPT_H

namespace savrent::cc
{
/**
 * Scrambles `length` bytes from `in` to `out` with the log key, from the key's first position on.
 *
 * Applied twice it gives the input back. `out` may be `in`. Any thread.
 */
void encrypt(const char* in, char* out, unsigned long length);

/**
 * The same for a piece of a longer text: `position` is the place of the piece's first byte in that text.
 */
void encrypt_piece(const char* in, char* out, unsigned long length, unsigned long position);
} // namespace savrent::cc

#endif
