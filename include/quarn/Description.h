#pragma once

/// Declares what the classes of a text block name as their friend.
namespace quarn::blocktext {

/// The library's description of the blocks in which a class stands: it reaches the private members.
template <class T>
struct Description;

}  // namespace quarn::blocktext
