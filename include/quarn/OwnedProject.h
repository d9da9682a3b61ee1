#pragma once

#include "quarn/v6ProjectFile.h"

namespace quarn {

/// A project that owns what it points to: its destructor deletes every object that a load created or a caller put in,
/// components and ports of the managers included, each once (see deleteContents()).
///
/// Give it only objects from `new` that nothing else deletes, and share none with another project. Two kinds of objects
/// stay the caller's: those that a setter or a load replaced, and those that were taken out of a list. It cannot be
/// copied; a v6ProjectFile made from it shares the objects as described at ProjectFile and must not outlive it. The
/// destructor is not virtual: delete it through its own class.
class OwnedProject : public v6ProjectFile {
public:
    OwnedProject() = default;
    OwnedProject(const OwnedProject&) = delete;
    OwnedProject& operator=(const OwnedProject&) = delete;
    ~OwnedProject() { deleteContents(*this); }
};

}  // namespace quarn
