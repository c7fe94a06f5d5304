#include "image/recipe/make.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"

#include <QDirIterator>
#include <QTest>

#include <algorithm>

using namespace jobs;

/** A confined worker makes the same bytes of every picture as a process that may do everything, and fails for the same reasons. */
class TestSameAsHere : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesTheSameBytes();
};

namespace {

/** Everything that libraries may want from the system: fonts, profiles, and every encoder. */
const QByteArray recipe = R"({"quorlin": 1,
    "operations": [{"do": "resize", "longest": 120}, {"do": "profile", "to": "Adobe RGB"}, {"do": "turn", "degrees": 7},
                   {"do": "watermark", "text": "{name} {camera} {taken} {width}", "position": "top"},
                   {"do": "watermark", "picture": "own/formats/grey-alpha8.png", "size": 10}],
    "outputs": [{"type": "jpeg", "profile": "Display P3"}, {"type": "png"}, {"type": "tiff"}, {"type": "bmp"}, {"type": "gif"},
                {"type": "jp2"}, {"type": "pdf"}, {"type": "webp"}, {"type": "avif"}, {"type": "jxl"},
                {"type": "jpeg", "profile": "gray", "name": "{name}-gray", "metadata": "copyright"}]})";
const QByteArray kept = R"({"quorlin": 1, "outputs": [{}, {"metadata": "none", "name": "{name}-bare"}]})";

/** Drawings and pages may take letters from the system too. */
QStringList pictures()
{
    QStringList paths;
    for (const QString &folder : {ownPicturesFolder(), corpusFolder()}) {
        QDirIterator items(folder, QDir::Files, QDirIterator::Subdirectories);
        while (items.hasNext())
            paths.append(items.next());
    }
    paths.sort();
    QStringList some;
    const int step = tests::isSlowRun() ? 1 : 23;
    for (int i = 0; i < paths.size(); i += step)
        some.append(paths[i]);
    return some;
}

struct Made
{
    QString problem;
    QByteArray bytes;
};

/** What this process makes of a picture. */
QMap<int, Made> madeHere(const image::Recipe &read, const QString &path, int number)
{
    QMap<int, Made> all;
    const auto source = platform::ImageSource::open(path);
    if (!source) {
        for (int i = 0; i < read.outputs.size(); ++i)
            all[i].problem = source.error().message;
        return all;
    }
    const auto plans = image::planOf(read, *source);
    for (int i = 0; i < plans.size(); ++i)
        all[i].problem = plans[i].problem;
    const text::TokenFacts facts = factsOfPicture(path, number);
    const auto fill = [&facts](const QString &pattern, QSize size) { return watermarkFrom(pattern, facts, size); };
    image::makeOutputs(read, *source, plans, fill, [&all](int index, const platform::Result<image::MadeOutput> &made) {
        all[index] = made ? Made{{}, made->bytes} : Made{made.error().message, {}};
    });
    return all;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestSameAsHere::makesTheSameBytes()
{
    const QStringList paths = pictures();
    QVERIFY(!paths.isEmpty());
    for (QByteArray json : {recipe, kept}) {
        json.replace("own/", ownPicturesFolder().toUtf8() + '/');
        const ScratchFolder folder;
        batches::Run run;
        run.options.destination.folder = folder.path("out");
        const auto lines = batches::sortedLinesOf(json, paths, run);
        const auto read = image::readRecipe(json, QStringLiteral("/"));
        QVERIFY(read);
        QMap<QString, QMap<int, ReportLine>> byInput;
        for (const ReportLine &line : lines)
            byInput[line.input].insert(line.index, line);
        int compared = 0;
        for (int number = 0; number < paths.size(); ++number) {
            const auto here = madeHere(*read, paths[number], number);
            for (const auto &line : byInput.value(paths[number])) {
                const Made &made = here[line.index];
                QVERIFY2(line.reason == made.problem,
                         qPrintable(QStringLiteral("%1: %2, here: %3").arg(line.input, line.reason, made.problem)));
                if (line.status == LineStatus::Ok)
                    QVERIFY2(contentOf(line.output) == made.bytes, qPrintable(line.output));
                compared += line.status == LineStatus::Ok;
            }
        }
        QVERIFY(compared > paths.size() / 2);
    }
}

QUORLIN_TEST(TestSameAsHere)

#include "tst_same_as_here.moc"
