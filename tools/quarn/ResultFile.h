#pragma once

#include <QString>
#include <cstdint>

namespace quarn::tool {

/// The engine's binary result files. They may be large and are read piece by piece.
enum class ResultKind {
    NearZonePoint,
    MultiPoint,
    SarPlane,
    FarZoneBox,
    None,
};

/// What the first bytes of a file say it is; None also for what is no regular file or cannot be opened.
/// Throws a FileProblem for results whose path is longer than their readers open.
ResultKind resultKindOf(const QString& path);

std::int64_t sizeOfFile(const QString& path);

}  // namespace quarn::tool
