// glyph/: MD5 digests (RFC 1321) of files, and file names formed from them.
#pragma once

#include "clock_export.h"

#include <QString>

class CLOCK_EXPORT HMD5
{
public:
    HMD5();

    /// Renames a file, within its directory, to its digest in lowercase hexadecimal, a dot
    /// and its old suffix. Returns the new absolute path, or a null string for a file that cannot
    /// be read. A failed rename is not reported and leaves both files in place; usually an
    /// identical file is already there. Not thread-safe: all calls share one file object.
    static QString GeneratorFile(QString path);

    /// The digest of a file as 32 lowercase hexadecimal digits; empty for one that is missing or
    /// cannot be read to its end.
    static QString FileDigest(QString path);

    /// The compression of one 64-byte block into four state words. Only the low 32 bits of each
    /// word are used; the block may have any alignment.
    static void MD5Transform(unsigned long *state, unsigned char *block);

    void Update(const unsigned char *bytes, unsigned int length);
    /// Pads, and writes the 16 digest bytes.
    void Final(unsigned char *digest);

private:
    unsigned long m_state[4];
    unsigned int m_count[2]; // bits processed, low half first
    unsigned char m_buffer[64];
};
