#pragma once

#include "presets/statements.h"

#include <QSet>

namespace presets {

/**
 * One question of the database while it compiles a statement. Null pointers for parts that a question does not have.
 */
struct Access
{
    int action = 0;
    const char *first = nullptr;    ///< mostly the table
    const char *second = nullptr;   ///< mostly the column
    const char *database = nullptr; ///< "main"
    const char *trigger = nullptr;  ///< the trigger or view on whose behalf it is asked
};

/**
 * Answers the database's questions about a statement: yes to exactly the intended access, no to everything else,
 * whatever the text has turned into. A statement that got a no fails to compile.
 */
class Guard
{
public:
    /** From now on @p statement is the intended one. */
    void expect(const Statement &statement);
    /** Compilation is over. When the database recompiles by itself, it may ask the same again. */
    void endCompiling() { m_isCompiling = false; }

    bool allows(const Access &access);

    /**
     * Whether the statement did what was intended: its verb, on its table, reading every column that it names, so that
     * none was a keyword.
     */
    bool sawItsStatement() const;

private:
    bool allowsListKeeping(const Access &access) const;
    bool allowsReading(const Access &access);
    bool isOnTable(const Access &access) const;
    bool isTheVerb(const Access &access) const;

    Statement m_statement;
    QSet<QString> m_columnsRead;
    bool m_sawVerb = false;
    bool m_isCompiling = false;
};

} // namespace presets
