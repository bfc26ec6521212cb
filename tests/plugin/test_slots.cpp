// The places of the host's virtual operations in their tables, and their exact types: what a
// plugin and a host that were built apart must agree on.
#include "hcontentnode.h"
#include "icontentrender.h"
#include "inodeplugin.h"

#include <QDomElement>
#include <QIcon>
#include <QModelIndex>
#include <QtTest>

#include <cstring>
#include <iterator>

using Lw::HNode;
using Lw::HSendFileInfo;
using Lw::IContentRender;
using Lw::INodePlugin;

namespace {

// QObject's own entries: meta-object, cast, call, two destructors, event, filter, timer, child,
// custom event, connect and disconnect notification.
constexpr int kQObjectSlots = 12;

constexpr int kFirstPluginSlot = 2; // after the destructor, which takes two

/// The entry of a virtual operation in its class's table, read from the pointer to member as the
/// Itanium C++ ABI lays it out. The signature is spelled by the caller, so that it is checked too.
template<class Signature, class Class>
int SlotOf(Signature Class::*operation)
{
    struct
    {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } raw = {};
    static_assert(sizeof raw == sizeof operation, "not the Itanium layout");
    std::memcpy(&raw, &operation, sizeof raw);
#if defined(__arm__) || defined(__aarch64__)
    const std::ptrdiff_t offset = raw.pointer; // the mark of a virtual one is in the adjustment
#else
    const std::ptrdiff_t offset = raw.pointer - 1;
#endif
    return static_cast<int>(offset / std::ptrdiff_t(sizeof(void *)));
}

struct Operation
{
    const char *name;
    int slot;
};

// In the order of their table, one slot after the other.
// clang-format off
using P = INodePlugin;
const Operation kPluginOperations[] = {
    {"name", SlotOf<QString()>(&P::name)},
    {"PluginMatch", SlotOf<bool(QDomElement &)>(&P::PluginMatch)},
    {"level", SlotOf<int()>(&P::level)},
    {"type", SlotOf<QString()>(&P::type)},
    {"icon", SlotOf<QIcon()>(&P::icon)},
    {"Create", SlotOf<HNode *()>(&P::Create)},
    {"Create named", SlotOf<HNode *(QString, HNode *)>(&P::Create)},
    {"CreateAreaRender", SlotOf<IContentRender *(HNode *)>(&P::CreateAreaRender)},
    {"CreateFrameRender", SlotOf<IContentRender *(HNode *)>(&P::CreateFrameRender)},
    {"AddFile", SlotOf<bool(Lw::HModel *, QModelIndex &, int)>(&P::AddFile)},
    {"OverrideNewFile", SlotOf<bool()>(&P::OverrideNewFile)},
    {"NewFile", SlotOf<bool(Lw::HModel *, QModelIndex &, int)>(&P::NewFile)},
    {"AppQuit", SlotOf<void()>(&P::AppQuit)},
    {"AddFileBasisSuffix",
     SlotOf<bool(QString, Lw::HModel *, QModelIndex &, int)>(&P::AddFileBasisSuffix)},
    {"AddFileBasisSupport",
     SlotOf<bool(QString, Lw::HModel *, QModelIndex &, int)>(&P::AddFileBasisSupport)},
    {"SupportSuffix", SlotOf<QStringList()>(&P::SupportSuffix)},
    {"SuportController", SlotOf<bool(QString &)>(&P::SuportController)},
    {"ConvertVersion", SlotOf<bool(HNode *, Lw::HVersion &)>(&P::ConvertVersion)},
    {"D3DLoseDevice", SlotOf<void()>(&P::D3DLoseDevice)},
};

using R = IContentRender;
const Operation kRenderOperations[] = {
    {"Start", SlotOf<void(unsigned int, long long)>(&R::Start)},
    {"Pause", SlotOf<void()>(&R::Pause)},
    {"Stop", SlotOf<void()>(&R::Stop)},
    {"Remove", SlotOf<void()>(&R::Remove)},
    {"PlayNext", SlotOf<void()>(&R::PlayNext)},
    {"renderState", SlotOf<int()>(&R::renderState)},
    {"PrepareData", SlotOf<void()>(&R::PrepareData)},
    {"Seek", SlotOf<void(long long)>(&R::Seek)},
    {"AreaFinish", SlotOf<bool()>(&R::AreaFinish)},
    {"SetVideoNotClear", SlotOf<void(bool)>(&R::SetVideoNotClear)},
};

using N = HNode;
using Sent = QList<HSendFileInfo>;
const Operation kNodeOperations[] = {
    {"Type", SlotOf<QString()>(&N::Type)},
    {"Level", SlotOf<int()>(&N::Level)},
    {"GetAllFileList", SlotOf<void(Sent &)>(&N::GetAllFileList)},
    {"SetGuid", SlotOf<void(QString)>(&N::SetGuid)},
    {"GetGuid", SlotOf<QString()>(&N::GetGuid)},
    {"HaveSourcFile", SlotOf<bool()>(&N::HaveSourcFile)},
    {"NodeMatch", SlotOf<bool(QDomElement &)>(&N::NodeMatch)},
    {"UpdateNode", SlotOf<bool(QDomElement, QList<Lw::FileInfo> &)>(&N::UpdateNode)},
    {"CoverToSDKFormate", SlotOf<void(QDomElement &, Lw::GetProgramModel)>(&N::CoverToSDKFormate)},
    {"AfterUpdate", SlotOf<void(bool)>(&N::AfterUpdate)},
    {"AddChild", SlotOf<bool(HNode *)>(&N::AddChild)},
    {"InsertChild", SlotOf<bool(int, HNode *)>(&N::InsertChild)},
    {"Copy", SlotOf<HNode *()>(&N::Copy)},
    {"ReloadAttribute", SlotOf<void()>(&N::ReloadAttribute)},
    {"Delete", SlotOf<void()>(&N::Delete)},
    {"Close", SlotOf<bool(bool)>(&N::Close)},
    {"Generator", SlotOf<bool(QString, Sent &, int)>(&N::Generator)},
    {"Export", SlotOf<bool(Sent &)>(&N::Export)},
    {"Import", SlotOf<bool(QString)>(&N::Import)},
    {"NodeAlready", SlotOf<bool(int)>(&N::NodeAlready)},
    {"UsbExport", SlotOf<bool()>(&N::UsbExport)},
    {"AllFileExists", SlotOf<bool()>(&N::AllFileExists)},
    {"ControllerChange", SlotOf<void()>(&N::ControllerChange)},
    {"InitData", SlotOf<void()>(&N::InitData)},
    {"SDKInitData", SlotOf<bool(void *)>(&N::SDKInitData)},
    {"ReloadAttrbute", SlotOf<void(HNode *)>(&N::ReloadAttrbute)},
    {"Duration", SlotOf<int()>(&N::Duration)},
    {"TotalFile", SlotOf<int()>(&N::TotalFile)},
    {"GeneratorFinish", SlotOf<void()>(&N::GeneratorFinish)},
    {"RebuildNode", SlotOf<void()>(&N::RebuildNode)},
    {"RebuildNode from", SlotOf<void(HNode *)>(&N::RebuildNode)},
    {"GetThumbnail", SlotOf<QImage()>(&N::GetThumbnail)},
    {"Editable", SlotOf<bool()>(&N::Editable)},
    {"GetSDKTempFile", SlotOf<void(QList<QFileInfo> &)>(&N::GetSDKTempFile)},
    {"TranscodeFinish", SlotOf<bool()>(&N::TranscodeFinish)},
    {"Size", SlotOf<QSize()>(&N::Size)},
    {"FrameHeight", SlotOf<int()>(&N::FrameHeight)},
    {"Pos", SlotOf<QPoint()>(&N::Pos)},
    {"ON_SizeChange", SlotOf<void(QSize)>(&N::ON_SizeChange)},
    {"UseInternalBorder", SlotOf<bool()>(&N::UseInternalBorder)},
    {"SourcNode", SlotOf<HNode *()>(&N::SourcNode)},
};
// clang-format on

template<std::size_t count>
void AddRows(const Operation (&operations)[count], int firstSlot)
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("expected");
    for (const Operation &operation : operations)
        QTest::newRow(operation.name) << operation.slot << firstSlot++;
}

void CheckRow()
{
    QFETCH(int, slot);
    QFETCH(int, expected);
    QCOMPARE(slot, expected);
}

} // namespace

class TestSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NodePlugin_data();
    void NodePlugin() { CheckRow(); }
    void ContentRender_data();
    void ContentRender() { CheckRow(); }
    void Node_data();
    void Node() { CheckRow(); }
    void ContentNodeAddsNone();
};

void TestSlots::NodePlugin_data()
{
    AddRows(kPluginOperations, kFirstPluginSlot);
}

void TestSlots::ContentRender_data()
{
    AddRows(kRenderOperations, kQObjectSlots);
}

void TestSlots::Node_data()
{
    AddRows(kNodeOperations, kQObjectSlots);
}

void TestSlots::ContentNodeAddsNone()
{
    struct OneMore : Lw::HContentNode
    {
        virtual void More() { }
    };
    QCOMPARE(SlotOf<void()>(&OneMore::More), kQObjectSlots + int(std::size(kNodeOperations)));
}

QTEST_GUILESS_MAIN(TestSlots)
#include "test_slots.moc"
