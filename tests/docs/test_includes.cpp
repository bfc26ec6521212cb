// The house that docs/architecture.md draws: a room includes only rooms on floors below it.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

namespace {

// Paths within the tree, and what these files contain.
using Sources = QMap<QString, QString>;

struct Room
{
    QString drawn;     // what the drawing calls it
    QStringList files; // what the paths of its files begin with
};

// From the top floor down.
const QVector<Room> kRooms = {
    {"player/", {"player/"}},
    {"studio/", {"studio/"}},
    {"tools/", {"tools/"}},
    {"studio/text/", {"studio/text/"}},
    {"stage/", {"stage/"}},
    {"program/", {"program/"}},
    {"zones/", {"zones/"}},
    {"fit/", {"fit/"}},
    {"clock_plugin", {"clock_plugin/clock_plugin."}},
    {"clock_render", {"clock_plugin/clock_render."}},
    {"display/", {"clock_plugin/display/"}},
    {"clock_node_files", {"clock_plugin/clock_node_files."}},
    {"compose/", {"clock_plugin/compose/"}},
    {"glyph/", {"clock_plugin/glyph/"}},
    {"clock_node_sdk", {"clock_plugin/clock_node_sdk.", "clock_plugin/clock_sdk_tables."}},
    {"clock_node", {"clock_plugin/clock_node."}},
    {"clock_attributes", {"clock_plugin/clock_attribute"}},
    {"calendar/", {"clock_plugin/calendar/"}},
    {"image_bounds", {"clock_plugin/image_bounds.", "clock_plugin/clock_export."}},
    {"host/", {"host/"}},
    {"number_text", {"host/number_text."}},
};

// The rooms that see less than every floor below them: the programs that load a plugin, and what
// is pure.
const QMap<QString, QStringList> kNarrowRooms = {
    {"player/", {"stage/", "program/", "zones/", "calendar/", "host/", "number_text"}},
    {"stage/", {"program/", "zones/", "clock_attributes", "calendar/", "host/", "number_text"}},
    {"program/", {"host/", "number_text"}},
    {"zones/", {"calendar/"}},
    {"clock_attributes", {"image_bounds"}},
    {"calendar/", {"image_bounds", "number_text"}}, // the former for clock_export.h
    {"image_bounds", {}},
};

// Made by the build.
const QStringList kGenerated = {"catalogues.h"};

// The room with the longest beginning: one may be within another.
int FloorOf(const QString &path)
{
    int found = -1;
    int length = 0;
    for (int floor = 0; floor < kRooms.size(); ++floor) {
        for (const QString &begin : kRooms[floor].files) {
            if (path.startsWith(begin) && begin.size() > length) {
                found = floor;
                length = begin.size();
            }
        }
    }
    return found;
}

bool MayInclude(int from, int to)
{
    if (from == to)
        return true;
    const auto narrow = kNarrowRooms.constFind(kRooms[from].drawn);
    return narrow == kNarrowRooms.constEnd() ? from < to : narrow->contains(kRooms[to].drawn);
}

// The file of the tree that an include means; empty for one of a library.
QString Included(const Sources &sources, const QString &path, const QString &name)
{
    const QString folder = path.left(path.lastIndexOf('/') + 1);
    for (const QString &root : {folder, QString("clock_plugin/"), QString("host/"), QString("fit/"),
                                QString("program/"), QString("stage/"), QString("zones/"),
                                QString("tools/"), QString("studio/"), QString("player/")}) {
        const QString candidate = QDir::cleanPath(root + name);
        if (sources.contains(candidate))
            return candidate;
    }
    return {};
}

// Made by the build, for every file or for this one.
bool IsGenerated(const QString &path, const QString &name)
{
    return kGenerated.contains(name) || name == QFileInfo(path).completeBaseName() + ".moc";
}

// What runs against the drawing, one line per include.
QStringList Faults(const Sources &sources)
{
    static const QRegularExpression form(R"(^\s*#\s*include\s*(["<])([^">]+)[">])",
                                         QRegularExpression::MultilineOption);
    QStringList faults;
    for (auto source = sources.begin(); source != sources.end(); ++source) {
        const int from = FloorOf(source.key());
        if (from < 0)
            faults.append(source.key() + " is in no room");
        for (auto match = form.globalMatch(source.value()); match.hasNext() && from >= 0;) {
            const auto include = match.next();
            const QString name = include.captured(2);
            const QString included = Included(sources, source.key(), name);
            if (included.isEmpty() && include.captured(1) == "\""
                && !IsGenerated(source.key(), name))
                faults.append(source.key() + " includes " + name + ", which is not in the tree");
            if (!included.isEmpty()
                && (FloorOf(included) < 0 || !MayInclude(from, FloorOf(included))))
                faults.append(source.key() + " includes " + included);
        }
    }
    return faults;
}

QString Text(const QString &path)
{
    QFile file(QStringLiteral(SOURCE_DIR "/") + path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

Sources SourcesOfTheTree()
{
    Sources sources;
    for (const char *folder : {"player", "studio", "tools", "stage", "program", "zones", "fit",
                               "clock_plugin", "host"}) {
        QDirIterator files(QStringLiteral(SOURCE_DIR "/") + folder, {"*.h", "*.cpp"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = QDir(QStringLiteral(SOURCE_DIR)).relativeFilePath(files.next());
            sources.insert(path, Text(path));
        }
    }
    return sources;
}

// An include in a file, and what is wrong with it; nothing by default.
struct IncludeCase
{
    const char *name;
    const char *path;
    const char *include;
    const char *fault = "";
};

constexpr IncludeCase kIncludes[] = {
    {"down", "clock_plugin/display/a.cpp", "\"glyph/glyph_set.h\""},
    {"two rooms of the plugin's root", "clock_plugin/clock_node_sdk.cpp", "\"clock_node.h\""},
    {"same room", "clock_plugin/glyph/a.cpp", "\"glyph/glyph_set.h\""},
    {"same folder", "clock_plugin/glyph/a.cpp", "\"glyph_set.h\""},
    {"to the host", "program/a.cpp", "\"hnode.h\""},
    {"a library's", "clock_plugin/calendar/a.cpp", "<QString>"},
    {"generated", "tools/a.cpp", "\"catalogues.h\""},
    {"its own meta-objects", "tools/a.cpp", "\"a.moc\""},

    {"those of another file", "tools/a.cpp", "\"b.moc\"",
     "tools/a.cpp includes b.moc, which is not in the tree"},
    {"up", "clock_plugin/clock_node_sdk.cpp", "\"glyph/glyph_set.h\"",
     "clock_plugin/clock_node_sdk.cpp includes clock_plugin/glyph/glyph_set.h"},
    {"up within the plugin's root", "clock_plugin/clock_node.cpp", "\"clock_sdk_tables.h\"",
     "clock_plugin/clock_node.cpp includes clock_plugin/clock_sdk_tables.h"},
    {"up from the host", "host/a.cpp", "\"clock_node.h\"",
     "host/a.cpp includes clock_plugin/clock_node.h"},
    {"up by a path", "clock_plugin/glyph/a.cpp", "\"../../tools/tool.h\"",
     "clock_plugin/glyph/a.cpp includes tools/tool.h"},
    {"up in angles", "clock_plugin/glyph/a.cpp", "<display/row_layout.h>",
     "clock_plugin/glyph/a.cpp includes clock_plugin/display/row_layout.h"},
    {"out of a pure room", "clock_plugin/calendar/a.cpp", "\"hnode.h\"",
     "clock_plugin/calendar/a.cpp includes host/hnode.h"},
    {"a player that knows the plugin", "player/a.cpp", "\"clock_node.h\"",
     "player/a.cpp includes clock_plugin/clock_node.h"},
    {"a stage that knows its plugin", "stage/a.cpp", "\"clock_node.h\"",
     "stage/a.cpp includes clock_plugin/clock_node.h"},
    {"a stage that knows the player", "stage/a.cpp", "\"../player/player.h\"",
     "stage/a.cpp includes player/player.h"},
    {"a program that knows the plugin", "program/a.cpp", "\"clock_attributes.h\"",
     "program/a.cpp includes clock_plugin/clock_attributes.h"},
    {"nowhere", "program/a.cpp", "\"nowhere.h\"",
     "program/a.cpp includes nowhere.h, which is not in the tree"},
    {"in no room", "clock_plugin/attic.cpp", "<QString>", "clock_plugin/attic.cpp is in no room"},
};

} // namespace

class TestIncludes : public QObject
{
    Q_OBJECT

private slots:
    void IncludesUpAreFaults_data();
    void IncludesUpAreFaults();
    void TreeFollowsTheDrawing();
    void DrawingHasTheseFloors();
};

void TestIncludes::IncludesUpAreFaults_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("include");
    QTest::addColumn<QString>("fault");
    for (const IncludeCase &one : kIncludes)
        QTest::newRow(one.name) << one.path << one.include << one.fault;
}

void TestIncludes::IncludesUpAreFaults()
{
    QFETCH(QString, path);
    QFETCH(QString, include);
    QFETCH(QString, fault);
    Sources sources {{"clock_plugin/glyph/glyph_set.h", ""},
                     {"clock_plugin/clock_node.h", ""},
                     {"clock_plugin/clock_sdk_tables.h", ""},
                     {"clock_plugin/clock_attributes.h", ""},
                     {"clock_plugin/display/row_layout.h", ""},
                     {"tools/tool.h", ""},
                     {"player/player.h", ""},
                     {"host/hnode.h", ""}};
    sources.insert(path, "#pragma once\n\n#include " + include + " // why\n");
    QCOMPARE(Faults(sources).join('\n'), fault);
}

void TestIncludes::TreeFollowsTheDrawing()
{
    const Sources sources = SourcesOfTheTree();
    QVERIFY(sources.contains("clock_plugin/clock_node.h") && sources.contains("host/hnode.h"));
    QCOMPARE(Faults(sources).join('\n'), QString());
}

void TestIncludes::DrawingHasTheseFloors()
{
    const QString drawing = Text("docs/architecture.md").section("```", 1, 1);
    QStringList drawn;
    for (const QString &line : drawing.split('\n'))
        drawn.append(line.simplified().section(' ', 0, 0));
    int above = -1;
    for (const Room &room : kRooms) {
        const int line = drawn.indexOf(room.drawn);
        QVERIFY2(line > above, qPrintable(room.drawn));
        above = line;
    }
}

QTEST_GUILESS_MAIN(TestIncludes)
#include "test_includes.moc"
