#pragma once

#include "presets/statements.h"

#include <QSet>

namespace presets {

/** One question of the database while it compiles a statement. Null pointers where a question has no such part. */
struct Access
{
    int action = 0;
    const char *first = nullptr;    ///< mostly the table
    const char *second = nullptr;   ///< mostly the column
    const char *database = nullptr; ///< "main"
    const char *trigger = nullptr;  ///< the trigger or view on whose behalf it is
};

/**
 * Answers the database's questions about a statement: yes to exactly the access that was meant, no to everything else, whatever
 * the text has turned into. A statement that got a no fails to compile.
 */
class Guard
{
public:
    /** From now on @p statement is the one that is meant. */
    void expect(const Statement &statement);
    /** Compiling is over. When the database recompiles by itself, it may ask the same again. */
    void endCompiling() { m_isCompiling = false; }

    bool allows(const Access &access);

    /**
     * Whether the statement did what was meant: its verb, on its table, reading every column that it names, so that none was a
     * word with a meaning of its own.
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
