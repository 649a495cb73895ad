#include "SqlProcedures.h"

#include <QStringList>

namespace {

const QString c_Head = QStringLiteral("-- procedure ");

} // namespace

std::vector<QString> Statements(const QString& script) {
    std::vector<QString> statements(1);
    for (const QString& line : script.split(u'\n')) {
        if (line.startsWith(QStringLiteral("--")) || (statements.back().isEmpty() && line.trimmed().isEmpty())) {
            continue;
        }
        statements.back() += line + u'\n';
        const bool isInside =
            statements.back().startsWith(QStringLiteral("create trigger")) && !line.endsWith(QStringLiteral("end;"));
        if (line.endsWith(u';') && !isInside) {
            statements.emplace_back();
        }
    }
    statements.pop_back(); // what follows the last semicolon
    return statements;
}

std::vector<SqlProcedure> Procedures(const QString& script) {
    std::vector<SqlProcedure> procedures;
    QStringList parts = (u'\n' + script).split(u'\n' + c_Head);
    parts.removeFirst(); // what stands before the first procedure
    for (const QString& part : parts) {
        const qsizetype end = part.indexOf(u'\n');
        SqlProcedure& procedure = procedures.emplace_back();
        for (const QString& word : part.left(end).split(u' ')) {
            procedure.Inputs.push_back(word.toStdString());
        }
        procedure.Name = procedure.Inputs.front();
        procedure.Inputs.erase(procedure.Inputs.begin());
        procedure.Statements = Statements(part.mid(end));
    }
    return procedures;
}
