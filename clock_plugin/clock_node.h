// clock_plugin/: the content node of one clock: its settings as attributes in the host's store,
// their conversion to and from SDK XML, and the bookkeeping of its glyph files.
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

/// The type of the node and of its plugin.
inline constexpr char kNodeType[] = "LW_Clock_Plugin";

/// The host's code for a recorded file that is an image.
inline constexpr int kImageFileKind = 3;

namespace Sdk {
/// The tag of a clock's element.
inline constexpr char kClock[] = "clock";
} // namespace Sdk

/// The constructor sets no attributes: InitData() sets the defaults, UpdateNode() reads an element.
class CLOCK_EXPORT HClockNode : public Lw::HContentNode
{
    Q_OBJECT

public:
    HClockNode();
    ~HClockNode() override;

    // The host's operations.
    QString Type() override;                       ///< kNodeType
    bool NodeMatch(QDomElement &element) override; ///< whether the tag is Sdk::kClock
    /// Reads an SDK clock element; settings it does not mention are kept. False for a null element
    /// and for a type that is neither analog nor digital: then only its font is read. Also false if
    /// a slot deletes the node during the call.
    bool UpdateNode(QDomElement element, QList<Lw::FileInfo> &files) override;
    /// Appends the clock's element to the parent. Fonts, sizes, spacing and layout are not part of
    /// that form; for a picture clock only GUID, zone and adjustment are written, and the child
    /// elements are empty.
    void CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model) override;
    /// Generates the glyph images under their digest names if the node has no files yet.
    void AfterUpdate(bool isTemp) override;
    /// Generates the glyph images under their plain names. Always true.
    bool NodeAlready(int reason) override;
    bool AllFileExists() override; ///< whether all required glyph images exist; always true for a
                                   ///< picture clock, which has none
    void InitData() override; ///< writes the default of every row of the attribute table, in order
    int Duration() override;  ///< 6000 milliseconds
    /// Appends those of the node's files that are in a temporary program's directory; prints the
    /// others.
    void GetSDKTempFile(QList<QFileInfo> &out) override;

    // Getters.
    int ClockType();
    int DigitalSwapArea();
    int Digital_TopText_d(); ///< reads the key spelled Digital_TopTexy_d
    int Digital_Date_d();
    int Digital_Week_d();
    int Digital_Time_d();
    int Digital_Lunar_d();

    // Setters. Each stores its key and emits ReDrawSourceImage() once, even if the value is
    // unchanged, except where the attribute table says that a key needs no redraw.
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
    /// Converts a packed colour to the stored int; its top byte is ignored.
    int LWColorToInt(LWColor colour);

    // SDK XML. The arguments are attribute keys; absent attributes are not written.
    void ClockSubnodeCoverToSDK(QDomElement &element, QString valueKey, QString colorKey,
                                QString displayKey);
    void LunarCoverToSDK(QDomElement &element, QString colorKey, QString displayKey);
    /// Imports the settings of an SDK clock element into the attributes of an analog or a digital
    /// clock. Attributes it does not mention keep their values. Always true.
    bool PatchAnalog(QDomElement &element);
    bool PatchDigital(QDomElement &element);

    // Glyph files.
    /// Whether every key's file exists; prints the first one that does not.
    bool CheckFileExists(QStringList keys);
    /// Moves the node's glyph images into destDir, which ends in a separator, under names formed
    /// from their digests, and records the new paths. The images must still have their plain names:
    /// after an AfterUpdate or an earlier call there is nothing to move, and the records then point
    /// to missing files.
    void ProcessFileName(QString destDir);
    /// The same for a single image, the file name + key + ".png" of the clock output directory. No
    /// image is lost: the source is removed only when the same bytes exist under the digest's name.
    /// The record and the entries in both lists are added even for an image that is missing or
    /// cannot be moved.
    void SetFileInfo(QString name, QString key, QString destDir);
    /// Records every "file" child on the node, unchanged, and appends it to files.
    void ProcFile(QDomElement &element, QList<Lw::FileInfo> &files);

Q_SIGNALS:
    void ReDrawSourceImage();     ///< the glyph images must be regenerated
    void SizeChanged(QSize size); ///< declared for the host; never emitted here

private:
    // Write one attribute and emit ReDrawSourceImage() if its row of the table says so. A slot may
    // have deleted the node by the time they return.
    Q_DECL_HIDDEN void Store(Attribute attribute, int value);
    Q_DECL_HIDDEN void Store(Attribute attribute, const QString &value);
    Q_DECL_HIDDEN void StoreDefault(const AttributeRow &row);
    Q_DECL_HIDDEN void StoreComputedDefault(Attribute attribute);
    Q_DECL_HIDDEN void StoreHostTime(); // zone and daylight-saving flag

    Q_DECL_HIDDEN void ImportAll(const QDomElement &clock, const ImportElement *begin,
                                 const ImportElement *end);
    Q_DECL_HIDDEN void Apply(Attribute target, Conversion conversion, const QString &text);
    Q_DECL_HIDDEN QString SdkAdjust(); // the stored adjustment as the SDK writes it
    Q_DECL_HIDDEN void CoverChildToSDK(QDomElement &child, const ExportSource &source);

    // True once the analog spacing or swap was written. Nothing reads it, but it is part of the
    // object's size, which hosts may rely on.
    bool m_analogRowsWritten = false;
};

} // namespace Lw::HNodeClock

Q_DECLARE_METATYPE(Lw::HNodeClock::HClockNode *)
