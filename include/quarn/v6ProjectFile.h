#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <set>
#include <vector>

#include "quarn/BoundaryConditions.h"
#include "quarn/Export.h"
#include "quarn/ProjectFile.h"

class QFile;
class QTextStream;

namespace quarn {

/// A project that can be written as the engine's project text file and read back.
///
/// Saving: the whole text is made before the first byte is written, and a project without boundary conditions is
/// refused with a std::runtime_error then, with nothing written.
///
/// Loading: fills this object's members with new objects, which the caller owns from then on: OwnedProject deletes
/// them, and so does deleteContents(). Objects that were there before are replaced and not deleted; waveforms,
/// steady-state frequencies and requests are added to those that are there. Unknown blocks and keys are skipped. A
/// value that a damaged file lacks keeps its former value or takes its default; only an unsupported version is refused.
class QUARN_EXPORT v6ProjectFile : public ProjectFile {
public:
    v6ProjectFile();
    v6ProjectFile(const v6ProjectFile& other);
    v6ProjectFile& operator=(const v6ProjectFile& other);
    ~v6ProjectFile();

    const QString& getGeometryName() const { return m_geometryName; }
    void setPathToGeometryFile(const QString& path) { m_pathToGeometryFile = path; }

    /// The version of the file that was loaded; 0 where the file names none.
    unsigned int GetMajorFileVersionNumber() const { return m_majorFileVersion; }
    unsigned int GetMinorFileVersionNumber() const { return m_minorFileVersion; }
    unsigned int GetMinorFileVersionNumberToSave() const { return m_minorFileVersionToSave; }

    /// Writes the version line to the caller's stream, closes the caller's file and appends the rest to the file at
    /// `path`. Always returns false; check the file to learn the outcome.
    bool save(const QString& path, QTextStream& stream, QFile& file);

    /// Writes the project to a stream. Returns true when the stream is in error afterwards, and false on success.
    bool saveToStream(QTextStream& stream);

    /// Reads the version line from the caller's stream, which must be at its start, detaches the stream, closes the
    /// caller's file and reads the rest from the file at `path`. False when the version is above 8, which also appends
    /// to `errors`, or when the file cannot be opened.
    bool load(const QString& path, QFile& file, QTextStream& stream, QStringList& errors);

    /// Reads a project from a stream; a device is read to its end. False when the version is above 8, which also
    /// appends to `errors`.
    bool loadFromStream(QTextStream& stream, QStringList& errors);

    /// Reads the first line of a project file. The major version is a single digit. Both are 0 for a line without a
    /// version, and both keep their values when the stream is in error.
    static void getFileVersion(QTextStream& stream, unsigned int& major, unsigned int& minor);

    /// Removes every character whose code equals the index of the first CR in the text, then likewise for the first LF.
    static void StripEscapeCharacters(QString& text);
    static void StripEscapeCharactersAndTrimWhitespace(QString& text);

    /// Texts and numbers that stand for no boundary type give CPML; a value that is no boundary type gives
    /// "UnknownType".
    static BoundaryConditions::BoundaryType OuterBoundaryDescriptorToType(const QString& descriptor);
    static BoundaryConditions::BoundaryType OuterBoundaryDescriptorToType(int number);
    static QString OuterBoundaryTypeToDescriptor(BoundaryConditions::BoundaryType type);

private:
    friend struct ProjectContents;

    bool acceptsVersionOf(QTextStream& stream, QStringList& errors);
    void loadBlocks(QTextStream& stream, const QString& path);

    QString m_geometryName;
    std::uint32_t m_majorFileVersion = 0;
    std::uint32_t m_minorFileVersion = 0;
    std::uint32_t m_majorFileVersionToSave = 3;
    std::uint32_t m_minorFileVersionToSave = 28;
    // The objects that the load under way has created. Nobody else knows of them yet, so that one which a later block
    // replaces is deleted.
    std::set<const void*> m_createdByLoad;
};

}  // namespace quarn
