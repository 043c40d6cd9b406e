#include "../support/test_main.h"

#include "model/primitives.h"
#include "model/stl_reader.h"

#include <QTemporaryDir>
#include <QtEndian>

#include <cstring>

using namespace tarnix;

namespace {

const char* const k_one_facet =
    "solid one\n facet normal 0 0 1\n  outer loop\n   vertex 0 0 0\n"
    "   vertex 1 0 0\n   vertex 0 1 0\n  endloop\n endfacet\nendsolid one\n";

QByteArray WithCount(QByteArray bytes, quint32 count)
{
    qToLittleEndian(count, bytes.data() + 80);
    return bytes;
}

QByteArray WithFloat(QByteArray bytes, int offset, float value)
{
    std::memcpy(bytes.data() + offset, &value, sizeof value);
    return bytes;
}

QString SamplePath(const char* name)
{
    return QStringLiteral(TARNIX_SAMPLES "/") + QLatin1String(name);
}

} // namespace

class StlReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSamplePartsAreClosedSolids_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("ascii");
        QTest::newRow("bracket") << "bracket.stl" << false;
        QTest::newRow("gear") << "gear.stl" << true;
        QTest::newRow("vase") << "vase.stl" << false;
    }

    void theSamplePartsAreClosedSolids()
    {
        QFETCH(QString, file);
        QFETCH(bool, ascii);
        const StlReader::Result result = StlReader::ReadFile(SamplePath(qPrintable(file)));
        QVERIFY2(result, qPrintable(result.error));
        QCOMPARE(result.format == StlReader::Format::Ascii, ascii);
        const Topology& topology = result.mesh->GetTopology();
        QVERIFY(topology.IsSolid());
        QCOMPARE(topology.shells, 1);
        QCOMPARE(topology.degenerate, 0);
        QVERIFY(result.mesh->Volume() > 1000.0);
    }

    void bothFormsKeepTheShape_data()
    {
        QTest::addColumn<bool>("ascii");
        QTest::newRow("binary") << false;
        QTest::newRow("ascii") << true;
    }

    void bothFormsKeepTheShape()
    {
        QFETCH(bool, ascii);
        const Mesh sphere = MakeSphere(12.5, 12);
        const QByteArray bytes =
            ascii ? StlWriter::Ascii(sphere, "a ball") : StlWriter::Binary(sphere, "a ball");
        QCOMPARE(StlReader::Sniff(bytes) == StlReader::Format::Ascii, ascii);
        const StlReader::Result result = StlReader::Read(bytes);
        QVERIFY2(result, qPrintable(result.error));
        QCOMPARE(result.mesh->Triangles().size(), sphere.Triangles().size());
        QCOMPARE(result.mesh->Points().size(), sphere.Points().size());
        QVERIFY(std::abs(result.mesh->Volume() - sphere.Volume()) < 0.01);
        QVERIFY(result.mesh->GetTopology().IsSolid());
    }

    void aBinaryFileThatStartsWithSolidIsStillBinary()
    {
        QByteArray bytes = StlWriter::Binary(MakeBox({1, 2, 3}), "box");
        bytes.replace(0, 6, "solid ");
        QCOMPARE(StlReader::Sniff(bytes), StlReader::Format::Binary);
        QVERIFY(StlReader::Read(bytes));
    }

    void trailingBytesAfterABinaryBodyAreAllowed()
    {
        const QByteArray bytes = StlWriter::Binary(MakeBox({1, 2, 3}), "box") + "colour data";
        QCOMPARE(StlReader::Read(bytes).mesh->Triangles().size(), size_t(12));
    }

    void asciiReadsWhateverSpacingAndCaseItComesIn_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray text(k_one_facet);
        QTest::newRow("plain") << text;
        QTest::newRow("upper case") << text.toUpper();
        QTest::newRow("windows line ends") << QByteArray(text).replace("\n", "\r\n");
        QTest::newRow("tabs") << QByteArray(text).replace(" ", "\t");
        QTest::newRow("no name") << QByteArray(text).replace(" one", "");
        QTest::newRow("two solids") << text + text;
        QTest::newRow("exponents") << QByteArray(text).replace("1 0 0", "1.0e+0 0 -0.0");
        QTest::newRow("normal not a number")
            << QByteArray(text).replace("normal 0 0 1", "normal nan nan nan");
    }

    void asciiReadsWhateverSpacingAndCaseItComesIn()
    {
        QFETCH(QByteArray, text);
        const StlReader::Result result = StlReader::Read(text);
        QVERIFY2(result, qPrintable(result.error));
        QVERIFY(result.mesh->Triangles().size() >= 1);
    }

    void theNameOfAnAsciiSolidIsKept()
    {
        QCOMPARE(StlReader::Read(QByteArray(k_one_facet).replace(" one", " left hinge")).name,
                 QString("left hinge"));
    }

    void aBrokenFileIsToldWithItsPlace_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("part_of_message");
        const QByteArray text(k_one_facet);
        const QByteArray box = StlWriter::Binary(MakeBox({1, 2, 3}), "box");
        QTest::newRow("empty") << QByteArray() << "is empty";
        QTest::newRow("too short") << QByteArray("hello") << "not an STL file";
        QTest::newRow("cut off binary") << box.left(box.size() - 1) << "12 triangles and holds 11";
        QTest::newRow("only a header") << WithCount(box.left(84), 7) << "7 triangles and holds 0";
        QTest::newRow("huge count") << WithCount(box, 0xffffffffu) << "cut off";
        QTest::newRow("no triangles") << WithCount(box.left(84), 0) << "no triangles";
        QTest::newRow("infinite corner")
            << WithFloat(box, 84 + 12, std::numeric_limits<float>::infinity()) << "Triangle 1 ";
        QTest::newRow("not a number")
            << WithFloat(box, 84 + 50 + 16, std::numeric_limits<float>::quiet_NaN())
            << "Triangle 2 ";
        QTest::newRow("out in space") << WithFloat(box, 84 + 12, 2.0e6f) << "not a usable point";
        QTest::newRow("empty solid") << QByteArray("solid x\nendsolid x\n") << "no triangles";
        QTest::newRow("no end") << text.left(text.indexOf("endsolid")) << "no end";
        QTest::newRow("ends in a facet") << text.left(text.indexOf("endloop")) << "no end";
        QTest::newRow("ends in a vertex") << text.left(text.indexOf("0 1 0") + 3) << "no end";
        QTest::newRow("word for a number") << QByteArray(text).replace("0 1 0", "0 up 0")
                                           << "Line 6: \"a number\" was expected, not \"up\"";
        QTest::newRow("fourth vertex")
            << QByteArray(text).replace("  endloop", "  vertex 1 1 1\n  endloop")
            << "\"endloop\" was expected, not \"vertex\"";
        QTest::newRow("two vertices")
            << QByteArray(text).replace("   vertex 0 1 0\n", "") << "\"vertex\" was expected";
        QTest::newRow("stray word")
            << QByteArray(text).replace(" facet", " face") << "Line 2: \"facet\"";
        QTest::newRow("infinite vertex")
            << QByteArray(text).replace("0 1 0", "inf 1 0") << "not a usable point";
        QTest::newRow("text after the end") << text + "and more"
                                            << "\"solid\" was expected";
        QTest::newRow("a picture")
            << QByteArray("\x89PNG\r\n\x1a\n").append(QByteArray(200, 'x')) << "cut off";
    }

    void aBrokenFileIsToldWithItsPlace()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, part_of_message);
        const StlReader::Result result = StlReader::Read(bytes);
        QVERIFY(!result);
        QVERIFY2(result.error.contains(part_of_message), qPrintable(result.error));
    }

    void noCutOfAFileReadsOutOfBounds()
    {
        const QByteArray binary = StlWriter::Binary(MakeBox({1, 2, 3}), "box");
        const QByteArray ascii = StlWriter::Ascii(MakeBox({1, 2, 3}), "box");
        for (const QByteArray& whole : {binary, ascii}) {
            for (int length = 0; length < whole.size(); length += 7)
                StlReader::Read(QByteArray(whole.constData(), length));
        }
    }

    void randomBytesNeverCrash()
    {
        quint32 seed = 20240501;
        qInfo("seed %u", seed);
        for (int round = 0; round < 300; ++round) {
            QByteArray bytes = round % 2 == 0 ? StlWriter::Ascii(MakeBox({1, 2, 3}), "box")
                                              : StlWriter::Binary(MakeBox({1, 2, 3}), "box");
            for (int i = 0; i < 8; ++i) {
                seed = seed * 1664525u + 1013904223u;
                bytes[static_cast<int>(seed >> 8) % bytes.size()] = static_cast<char>(seed >> 24);
            }
            const StlReader::Result result = StlReader::Read(bytes);
            QVERIFY(result || !result.error.isEmpty());
        }
    }

    void aMissingFileIsToldByTheSystemsWords()
    {
        QTemporaryDir folder;
        const StlReader::Result result = StlReader::ReadFile(folder.filePath("nothing.stl"));
        QVERIFY(!result);
        QVERIFY(result.error.contains("cannot be opened"));
        QVERIFY(!StlReader::ReadFile(folder.path()));
    }
};

OVK_TEST_CLASS(StlReaderTest)

#include "stl_reader_test.moc"
