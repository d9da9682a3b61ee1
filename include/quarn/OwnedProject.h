#pragma once

#include "quarn/v6ProjectFile.h"

namespace quarn {

/// A project that owns what it points to: its destructor deletes every object that a load created or a caller put in,
/// components and ports of the managers included, each once (see deleteContents()).
///
/// Give it only objects from `new` that nothing else deletes, and share none with another project. What a setter
/// replaces, the DFT parameters of the constructor included, what a load replaces though a caller put it in, and what
/// is taken out of a list is the caller's to delete. An OwnedProject cannot be copied; a v6ProjectFile made from it
/// shares objects as ProjectFile says and must not outlive it. The destructor is not virtual: delete it through its own
/// class.
class OwnedProject : public v6ProjectFile {
public:
    OwnedProject() = default;
    OwnedProject(const OwnedProject&) = delete;
    OwnedProject& operator=(const OwnedProject&) = delete;
    ~OwnedProject() { deleteContents(*this); }
};

}  // namespace quarn
