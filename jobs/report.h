#pragma once

#include <QHash>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace jobs {

enum class LineStatus { Ok, Failed, NotSupported, Skipped, Planned };

/** What came of one output of one picture. */
struct ReportLine
{
    QString input;
    QString output; ///< empty if there is none
    int index = 0;  ///< of the output in the recipe
    LineStatus status = LineStatus::Failed;
    QString reason;
    QString type; ///< a word of recipes; empty if unknown
    QSize size;   ///< of the upright picture; empty if unknown
    qint64 bytes = 0;
    qint64 milliseconds = 0;
    bool isLossless = false;
    QStringList losses;
};

struct Summary
{
    int inputs = 0;
    int ok = 0; ///< planned ones too
    int failed = 0;
    int notSupported = 0;
    int skipped = 0;
    qint64 bytes = 0;
    double seconds = 0;
    int jobs = 1;

    void count(const ReportLine &line);
};

/**
 * One line of JSON with its line feed. Characters of platform::decodedPath() that represent a byte are written as
 * escapes, `\udce9`.
 * @p recipe is the name of the recipe, see recipeName(). */
QByteArray jsonLine(const ReportLine &line, const QString &recipe);
QByteArray jsonLine(const Summary &summary);

/** The first 12 hexadecimal digits of the SHA-256 of the bytes of a recipe's file. */
QString recipeName(const QByteArray &file);

/** What an earlier report says of an output. */
struct KnownOutput
{
    QString output;
    LineStatus status = LineStatus::Failed;
    QString type;
    qint64 bytes = 0;
};

/** A report that was written before, perhaps cut off or joined from several. */
class EarlierReport
{
public:
    /** Nothing where the file cannot be read. */
    static std::optional<EarlierReport> read(const QString &path);

    /** The last statement about an output of a picture with this recipe; nothing if there is none. */
    std::optional<KnownOutput> of(const QString &recipe, const QString &input, int index) const;
    /** Whether an output of any picture with this recipe is at @p path, made or planned. */
    bool hasOutputAt(const QString &recipe, const QString &path) const;
    /** Whether any of its lines is of this recipe; a report without lines is of every recipe. */
    bool isOf(const QString &recipe) const { return m_recipes.isEmpty() || m_recipes.contains(recipe); }

private:
    QHash<QString, KnownOutput> m_outputs;
    QSet<quint64> m_paths; ///< of outputs, each with its recipe, hashed
    QSet<QString> m_recipes;
};

/** A report that is being written: a file, standard output, or nothing. Every line is with the system when add() returns. */
class ReportFile
{
public:
    enum class Start { Empty, Added };

    ReportFile() = default;
    ReportFile(const ReportFile &) = delete;
    ReportFile &operator=(const ReportFile &) = delete;
    ~ReportFile();

    /**
     * @param path   "-" is standard output, "" writes nothing
     * @param start  with Added a report that was cut off in a line has that line ended first
     * @return why it cannot be written; empty if it can. A picture is never replaced by a report
     */
    QString open(const QString &path, Start start);
    /** @return false once it can no longer be written */
    bool add(const QByteArray &line);

private:
    int m_descriptor = -1;
    bool m_isOwn = false;
};

} // namespace jobs
