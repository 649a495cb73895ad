// A host over a company's own SQLite file, made with a few items when it is new: own-connection FILE

#include "MinimalHost.h"
#include "SqlConnection.h"

#include <QApplication>
#include <QFile>
#include <QSqlError>

#include <cstdio>

namespace {

QString Script(const QString& name) {
    QFile file(QStringLiteral(":/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        throw EHostError("The program lacks its own " + name.toStdString() + ".");
    }
    return QString::fromUtf8(file.readAll());
}

QSqlDatabase OpenCompany(const QString& file) {
    QSqlDatabase company = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    company.setDatabaseName(file);
    if (!company.open()) {
        throw EHostError(company.lastError().text().toStdString());
    }
    if (company.tables().isEmpty()) {
        for (const QString& statement : Statements(Script(QStringLiteral("company.sql")))) {
            if (QSqlQuery query(company); !query.exec(statement)) {
                throw EHostError(query.lastError().text().toStdString());
            }
        }
    }
    return company;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false); // a dialog may be the only window for a while
    if (argc != 2) {
        std::fprintf(stderr, "usage: own-connection FILE\n");
        return 2;
    }
    try {
        SqlConnection connection(OpenCompany(QString::fromLocal8Bit(argv[1])),
                                 Procedures(Script(QStringLiteral("procedures.sql"))));
        return FillNote(connection) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
