#ifndef SAVRENT_CC_SW_VER_H
#define SAVRENT_CC_SW_VER_H

namespace savrent_static::cc
{
class sw_ver
{
public:
    /// The version text of this library; a control box must stream the same one.
    static const char* get();
};
} // namespace savrent_static::cc

#endif
