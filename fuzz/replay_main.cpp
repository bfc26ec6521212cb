// fuzz/: main() that replays every file given, and every file in every directory given.
#include "fuzz_target.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace {

QStringList FilesAt(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    for (const QFileInfo &file : QDir(path).entryInfoList(QDir::Files, QDir::Name))
        files.append(file.filePath());
    return files;
}

bool Replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return false;
    const QByteArray input = file.readAll();
    std::fprintf(stderr, "%s\n", qPrintable(path));
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    bool isComplete = argc > 1;
    for (int i = 1; i < argc; ++i) {
        const QStringList files = FilesAt(QFile::decodeName(argv[i]));
        if (files.isEmpty() || !std::all_of(files.begin(), files.end(), &Replay)) {
            std::fprintf(stderr, "%s: no input, or one that cannot be read\n", argv[i]);
            isComplete = false;
        }
    }
    return isComplete ? 0 : 1;
}
