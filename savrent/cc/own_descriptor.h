#ifndef SAVRENT_CC_OWN_DESCRIPTOR_H
#define SAVRENT_CC_OWN_DESCRIPTOR_H

namespace savrent::cc
{
/**
 * Makes a descriptor that was just opened one of the library's own.
 *
 * Programs that the application starts do not inherit it: a link lives as long as any process holds it, and with it the
 * control of a control box. Nor does it stand for a standard stream that the application has closed: what is printed
 * would go out on a link, and 0 means that there is no socket.
 *
 * @param descriptor  -1 is handed through.
 * @return the descriptor to use from now on; -1, with errno set, when there was none left to move to.
 */
[[nodiscard]] int own_descriptor(int descriptor);
} // namespace savrent::cc

#endif
