#include "CommandLine.h"

#include "Console.h"

namespace quarn::tool {

namespace {
const QString help = QStringLiteral("help");
}

CommandLine::CommandLine(const QString& subcommand, const QString& description) : m_subcommand(subcommand) {
    m_parser.setApplicationDescription(description);
    m_parser.addOption({{QStringLiteral("h"), help}, QStringLiteral("Shows this help.")});
}

void CommandLine::addOption(const QString& name, const QString& description) {
    m_parser.addOption({name, description});
}

void CommandLine::addOption(const QString& name, const QString& description, const QString& valueName) {
    m_valueOptions << name;
    m_parser.addOption({name, description, valueName});
}

void CommandLine::addFile(const QString& name, const QString& description) {
    m_fileNames << name;
    m_parser.addPositionalArgument(name, description);
}

void CommandLine::addFiles(const QString& name, const QString& description) {
    m_fileNames << name;
    m_takesMoreFiles = true;
    m_parser.addPositionalArgument(name, description, name + QStringLiteral("..."));
}

bool CommandLine::parse(const QStringList& arguments) {
    const bool understood = m_parser.parse(QStringList(m_subcommand) + arguments);
    if (!understood) throw WrongUsage(m_parser.errorText());
    if (m_parser.isSet(help)) {
        out() << helpText();
        return false;
    }
    for (const QString& option : m_valueOptions) {
        if (m_parser.values(option).size() > 1) {
            throw WrongUsage(QStringLiteral("--%1 is given more than once.").arg(option));
        }
    }
    checkNumberOfFiles();
    return true;
}

// The parser's own usage line names the program file only.
QString CommandLine::helpText() const {
    QString text = m_parser.helpText();
    const QString files = m_fileNames.join(u' ') + QLatin1String(m_takesMoreFiles ? "..." : "");
    text.replace(0, text.indexOf(u'\n'), QStringLiteral("Usage: quarn %1 [options] %2").arg(m_subcommand, files));
    return text;
}

void CommandLine::checkNumberOfFiles() const {
    const int given = files().size();
    if (given < m_fileNames.size()) throw WrongUsage(QStringLiteral("%1 is missing.").arg(m_fileNames.at(given)));
    if (given > m_fileNames.size() && !m_takesMoreFiles) {
        throw WrongUsage(QStringLiteral("Unexpected argument '%1'.").arg(files().at(m_fileNames.size())));
    }
}

}  // namespace quarn::tool
