#pragma once

#include <QFile>
#include <QHash>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace jobs {

enum class LineStatus { Ok, Failed, NotSupported, Skipped, Planned };

/** What came of one output of one picture. */
struct ReportLine
{
    QString input;
    QString output; ///< empty where there is none
    int index = 0;  ///< of the output in the recipe
    LineStatus status = LineStatus::Failed;
    QString reason;
    QString type; ///< a word of recipes; empty where it is not known
    QSize size;   ///< of the upright picture; empty where it is not known
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

/** One line of JSON with its line feed. @p recipe is the name of the recipe, see recipeName(). */
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

    /** The last that it says of an output of a picture with this recipe; nothing where it says nothing. */
    std::optional<KnownOutput> of(const QString &recipe, const QString &input, int index) const;
    /** The first recipe that its lines name; empty where there is none. */
    const QString &firstRecipe() const { return m_firstRecipe; }

private:
    QHash<QString, KnownOutput> m_outputs;
    QString m_firstRecipe;
};

/** A report that is being written: a file, standard output, or nothing. */
class ReportFile
{
public:
    enum class Start { Empty, Added };

    /** @return why it cannot be written; empty where it can. "-" is standard output, "" writes nothing. */
    QString open(const QString &path, Start start);
    /** @return false where it can no longer be written */
    bool add(const QByteArray &line);

private:
    std::unique_ptr<QFile> m_file;
};

} // namespace jobs
