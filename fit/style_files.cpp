// fit/: which picture files a picture clock cannot read.
#include "fit.h"

#include "compose/picture_file.h"
#include "display/style_pictures.h"

namespace ClockFit {

QStringList UnreadableStyleFiles(int style)
{
    using namespace Lw::HNodeClock;
    QStringList files;
    for (const QString &name :
         {DialPicture(style), QString::fromLatin1(kHourPicture),
          QString::fromLatin1(kMinutePicture), QString::fromLatin1(kSecondPicture),
          QString::fromLatin1(kCentrePicture)}) {
        if (ReadImageFile(StyleFolder() + name).isNull())
            files.append(name);
    }
    return files;
}

} // namespace ClockFit
