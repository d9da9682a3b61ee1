#pragma once

#include <QCommandLineParser>
#include <stdexcept>

namespace quarn::tool {

class WrongUsage : public std::runtime_error {
public:
    explicit WrongUsage(const QString& problem) : std::runtime_error(problem.toStdString()) {}
};

/// The command line of one subcommand: its options, --help among them, and the files it works on.
class CommandLine {
public:
    CommandLine(const QString& subcommand, const QString& description);

    void addOption(const QString& name, const QString& description);
    /// An option that takes a value; the help calls it `valueName`.
    void addOption(const QString& name, const QString& description, const QString& valueName);
    void addFile(const QString& name, const QString& description);
    /// One or more files; nothing can follow them.
    void addFiles(const QString& name, const QString& description);

    /// False when the user asked for help and has got it. Throws WrongUsage.
    bool parse(const QStringList& arguments);

    bool isSet(const QString& option) const { return m_parser.isSet(option); }
    /// Null when the option is not set.
    QString value(const QString& option) const { return m_parser.value(option); }
    QStringList files() const { return m_parser.positionalArguments(); }

private:
    QString helpText() const;
    void checkNumberOfFiles() const;

    QString m_subcommand;
    QCommandLineParser m_parser;
    QStringList m_valueOptions;
    QStringList m_fileNames;
    bool m_takesMoreFiles = false;
};

}  // namespace quarn::tool
