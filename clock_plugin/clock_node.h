// The content node of one clock: its settings as attributes in the host's store, their conversion
// to and from SDK XML, and the bookkeeping of its glyph files.
#pragma once

#include "clock_attributes.h"
#include "clock_export.h"

#include "hcontentnode.h"

#include <QMetaType>
#include <QSize>
#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QDomElement;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

enum class Conversion;
struct ExportSource;
struct ImportElement;

/// Every glyph file moved by an export, and its digest at the same index. One pair for the
/// process; only appended to, never cleared by the plugin.
extern CLOCK_EXPORT QStringList fileList;
extern CLOCK_EXPORT QStringList fileMd5List;

/// The type of the node and of the plugin that makes it.
inline constexpr char kNodeType[] = "LW_Clock_Plugin";

/// What the host calls a recorded image.
inline constexpr int kImageFileKind = 3;

namespace Sdk {
/// The tag of a clock's element.
inline constexpr char kClock[] = "clock";
} // namespace Sdk

/// The constructor writes no attribute: InitData fills a new clock, UpdateNode one that is read.
class CLOCK_EXPORT HClockNode : public Lw::HContentNode
{
    Q_OBJECT

public:
    HClockNode();
    ~HClockNode() override;

    // The host's operations.
    QString Type() override;                       ///< kNodeType
    bool NodeMatch(QDomElement &element) override; ///< whether the tag is Sdk::kClock
    /// Takes over what an SDK clock element says; what it does not mention stays. False for a null
    /// element and for a type that is neither analog nor digital: then only its font was taken.
    bool UpdateNode(QDomElement element, QList<Lw::FileInfo> &files) override;
    /// Appends the clock's element to the parent. Fonts, sizes, spacing and layout are not part of
    /// that form, nor is anything of a picture clock but its zone and adjustment.
    void CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model) override;
    /// Makes the digest-named glyph images of a node that has no files yet.
    void AfterUpdate(bool isTemp) override;
    bool NodeAlready(int reason) override; ///< makes the plainly named glyph images; always true
    bool AllFileExists() override;         ///< a picture clock needs none
    void InitData() override; ///< writes the default of every row of the attribute table, in order
    int Duration() override;  ///< 6000 milliseconds
    /// Appends the node's files that lie in a temporary program's directory; prints the others.
    void GetSDKTempFile(QList<QFileInfo> &out) override;

    // Getters.
    int ClockType();
    int DigitalSwapArea();
    int Digital_TopText_d(); ///< reads the key spelled Digital_TopTexy_d
    int Digital_Date_d();
    int Digital_Week_d();
    int Digital_Time_d();
    int Digital_Lunar_d();

    // Setters. Each stores its key and emits ReDrawSourceImage() once, also for an equal value,
    // except where the attribute table says that a key needs no redraw.
    /// Stores sign and magnitude of an adjustment in seconds, modulo one day; emits twice.
    void SetTimeAdjust(int seconds);
    void SetTimeZone(QString zone);
    void SetDaylightSavingTimeStart(QString rule);
    void SetDaylightSavingTimeEnd(QString rule);
    void SetHourScaleFName(QString family);
    void SetHourScaleFSize(int points);
    void SetAnalog_AMPM_d(int shown);
    void SetAnalogAMPMFName(QString family);
    void SetAnalogAMPMFSize(int points);
    void SetAnalogAMPMColor(int colour);
    void SetAnalogTopText(QString text);
    void SetAnalogTopTextFName(QString family);
    void SetAnalogTopTextFSize(int points);
    void SetAnalogTopTextColor(int colour);
    void SetAnalogDateType(int code);
    void SetAnalogDateFName(QString family);
    void SetAnalogDateFSize(int points);
    void SetAnalogDateColor(int colour);
    void SetAnalogWeekType(int code);
    void SetAnalogWeekFName(QString family);
    void SetAnalogWeekFSize(int points);
    void SetAnalogWeekColor(int colour);
    void SetAnalogLunarFName(QString family);
    void SetAnalogLunarFSize(int points);
    void SetAnalogLunarColor(int colour);
    void SetDigitalDisplayMode(int mode);
    void SetDigitalTopText(QString text);
    void SetDigitalTopTextColor(int colour);
    void SetDigitalDateType(int code);
    void SetDigitalDateFName(QString family);
    void SetDigitalDateColor(int colour);
    void SetDigitalTimeType(int code);
    void SetDigitalTimeFName(QString family);
    void SetDigitalTimeColor(int colour);
    void SetDigitalWeekType(int code);
    void SetDigitalWeekFName(QString family);
    void SetDigitalWeekColor(int colour);
    void SetDigitalLunarFName(QString family);
    void SetDigitalLunarColor(int colour);

    int CovertDisplay(QString text); ///< the SDK's "true" and "false" as 1 and 0
    /// The stored int of a packed colour; its top byte is ignored.
    int LWColorToInt(LWColor colour);

    // SDK XML. The keys are of attributes; what the node does not have is not written.
    void ClockSubnodeCoverToSDK(QDomElement &element, QString valueKey, QString colorKey,
                                QString displayKey);
    void LunarCoverToSDK(QDomElement &element, QString colorKey, QString displayKey);
    /// Copies what an SDK clock element says into the attributes of an analog, a digital clock.
    /// What it does not mention stays. Always true.
    bool PatchAnalog(QDomElement &element);
    bool PatchDigital(QDomElement &element);

    // Glyph files.
    /// Whether a file exists for every key; prints the first that has none.
    bool CheckFileExists(QStringList keys);
    /// Moves the node's glyph images under their digests' names into destDir, which ends in a
    /// separator, and records them there. The images must carry their plain names: after an
    /// AfterUpdate or an earlier call there is nothing to move, and the records lose their files.
    void ProcessFileName(QString destDir);
    /// The same for the one image called name + key. No image is lost: it goes only where the same
    /// bytes are there under the digest's name. The record and the entries of both lists are made
    /// even for an image that is missing or cannot be moved.
    void SetFileInfo(QString name, QString key, QString destDir);
    /// Records every "file" child on the node, unchanged, and appends it to files.
    void ProcFile(QDomElement &element, QList<Lw::FileInfo> &files);

Q_SIGNALS:
    void ReDrawSourceImage();     ///< the glyph images must be regenerated
    void SizeChanged(QSize size); ///< declared for the host; never emitted here

private:
    // Write one attribute and emit ReDrawSourceImage() where its row of the table says so. A
    // listener may have deleted the node by the time they return.
    Q_DECL_HIDDEN void Store(Attribute attribute, int value);
    Q_DECL_HIDDEN void Store(Attribute attribute, const QString &value);
    Q_DECL_HIDDEN void StoreDefault(const AttributeRow &row);
    Q_DECL_HIDDEN void StoreComputedDefault(Attribute attribute);
    Q_DECL_HIDDEN void StoreHostTime(); // zone and daylight-saving flag

    Q_DECL_HIDDEN void Import(const QDomElement &clock, const ImportElement *begin,
                              const ImportElement *end);
    Q_DECL_HIDDEN void Apply(Attribute target, Conversion conversion, const QString &text);
    Q_DECL_HIDDEN QString SdkAdjust(); // the stored adjustment as the SDK writes it
    Q_DECL_HIDDEN void CoverChildToSDK(QDomElement &child, const ExportSource &source);

    // True once the analog spacing or swap was written. Kept for the host; nothing here reads it.
    bool m_analogRowsWritten = false;
};

} // namespace Lw::HNodeClock

Q_DECLARE_METATYPE(Lw::HNodeClock::HClockNode *)
