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

using Lw::HNode;
using Lw::HSendFileInfo;
using Lw::IContentRender;
using Lw::INodePlugin;

namespace {

// QObject's own entries: meta-object, cast, call, two destructors, event, filter, timer, child,
// custom event, connect and disconnect notification.
constexpr int kQObjectSlots = 12;

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

void AddRow(const char *name, int slot, int expected)
{
    QTest::newRow(name) << slot << expected;
}

void AddColumns()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("expected");
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
    AddColumns();
    using P = INodePlugin;
    int n = 2; // after the destructor, which takes two entries
    // clang-format off
    AddRow("name", SlotOf<QString()>(&P::name), n++);
    AddRow("PluginMatch", SlotOf<bool(QDomElement &)>(&P::PluginMatch), n++);
    AddRow("level", SlotOf<int()>(&P::level), n++);
    AddRow("type", SlotOf<QString()>(&P::type), n++);
    AddRow("icon", SlotOf<QIcon()>(&P::icon), n++);
    AddRow("Create", SlotOf<HNode *()>(&P::Create), n++);
    AddRow("Create named", SlotOf<HNode *(QString, HNode *)>(&P::Create), n++);
    AddRow("CreateAreaRender", SlotOf<IContentRender *(HNode *)>(&P::CreateAreaRender), n++);
    AddRow("CreateFrameRender", SlotOf<IContentRender *(HNode *)>(&P::CreateFrameRender), n++);
    AddRow("AddFile", SlotOf<bool(Lw::HModel *, QModelIndex &, int)>(&P::AddFile), n++);
    AddRow("OverrideNewFile", SlotOf<bool()>(&P::OverrideNewFile), n++);
    AddRow("NewFile", SlotOf<bool(Lw::HModel *, QModelIndex &, int)>(&P::NewFile), n++);
    AddRow("AppQuit", SlotOf<void()>(&P::AppQuit), n++);
    AddRow("AddFileBasisSuffix",
           SlotOf<bool(QString, Lw::HModel *, QModelIndex &, int)>(&P::AddFileBasisSuffix), n++);
    AddRow("AddFileBasisSupport",
           SlotOf<bool(QString, Lw::HModel *, QModelIndex &, int)>(&P::AddFileBasisSupport), n++);
    AddRow("SupportSuffix", SlotOf<QStringList()>(&P::SupportSuffix), n++);
    AddRow("SuportController", SlotOf<bool(QString &)>(&P::SuportController), n++);
    AddRow("ConvertVersion", SlotOf<bool(HNode *, Lw::HVersion &)>(&P::ConvertVersion), n++);
    AddRow("D3DLoseDevice", SlotOf<void()>(&P::D3DLoseDevice), n++);
    // clang-format on
}

void TestSlots::ContentRender_data()
{
    AddColumns();
    using R = IContentRender;
    int n = kQObjectSlots;
    // clang-format off
    AddRow("Start", SlotOf<void(unsigned int, long long)>(&R::Start), n++);
    AddRow("Pause", SlotOf<void()>(&R::Pause), n++);
    AddRow("Stop", SlotOf<void()>(&R::Stop), n++);
    AddRow("Remove", SlotOf<void()>(&R::Remove), n++);
    AddRow("PlayNext", SlotOf<void()>(&R::PlayNext), n++);
    AddRow("renderState", SlotOf<int()>(&R::renderState), n++);
    AddRow("PrepareData", SlotOf<void()>(&R::PrepareData), n++);
    AddRow("Seek", SlotOf<void(long long)>(&R::Seek), n++);
    AddRow("AreaFinish", SlotOf<bool()>(&R::AreaFinish), n++);
    AddRow("SetVideoNotClear", SlotOf<void(bool)>(&R::SetVideoNotClear), n++);
    // clang-format on
}

void TestSlots::Node_data()
{
    AddColumns();
    using N = HNode;
    using Sent = QList<HSendFileInfo>;
    int n = kQObjectSlots;
    // clang-format off
    AddRow("Type", SlotOf<QString()>(&N::Type), n++);
    AddRow("Level", SlotOf<int()>(&N::Level), n++);
    AddRow("GetAllFileList", SlotOf<void(Sent &)>(&N::GetAllFileList), n++);
    AddRow("SetGuid", SlotOf<void(QString)>(&N::SetGuid), n++);
    AddRow("GetGuid", SlotOf<QString()>(&N::GetGuid), n++);
    AddRow("HaveSourcFile", SlotOf<bool()>(&N::HaveSourcFile), n++);
    AddRow("NodeMatch", SlotOf<bool(QDomElement &)>(&N::NodeMatch), n++);
    AddRow("UpdateNode", SlotOf<bool(QDomElement, QList<Lw::FileInfo> &)>(&N::UpdateNode), n++);
    AddRow("CoverToSDKFormate",
           SlotOf<void(QDomElement &, Lw::GetProgramModel)>(&N::CoverToSDKFormate), n++);
    AddRow("AfterUpdate", SlotOf<void(bool)>(&N::AfterUpdate), n++);
    AddRow("AddChild", SlotOf<bool(HNode *)>(&N::AddChild), n++);
    AddRow("InsertChild", SlotOf<bool(int, HNode *)>(&N::InsertChild), n++);
    AddRow("Copy", SlotOf<HNode *()>(&N::Copy), n++);
    AddRow("ReloadAttribute", SlotOf<void()>(&N::ReloadAttribute), n++);
    AddRow("Delete", SlotOf<void()>(&N::Delete), n++);
    AddRow("Close", SlotOf<bool(bool)>(&N::Close), n++);
    AddRow("Generator", SlotOf<bool(QString, Sent &, int)>(&N::Generator), n++);
    AddRow("Export", SlotOf<bool(Sent &)>(&N::Export), n++);
    AddRow("Import", SlotOf<bool(QString)>(&N::Import), n++);
    AddRow("NodeAlready", SlotOf<bool(int)>(&N::NodeAlready), n++);
    AddRow("UsbExport", SlotOf<bool()>(&N::UsbExport), n++);
    AddRow("AllFileExists", SlotOf<bool()>(&N::AllFileExists), n++);
    AddRow("ControllerChange", SlotOf<void()>(&N::ControllerChange), n++);
    AddRow("InitData", SlotOf<void()>(&N::InitData), n++);
    AddRow("SDKInitData", SlotOf<bool(void *)>(&N::SDKInitData), n++);
    AddRow("ReloadAttrbute", SlotOf<void(HNode *)>(&N::ReloadAttrbute), n++);
    AddRow("Duration", SlotOf<int()>(&N::Duration), n++);
    AddRow("TotalFile", SlotOf<int()>(&N::TotalFile), n++);
    AddRow("GeneratorFinish", SlotOf<void()>(&N::GeneratorFinish), n++);
    AddRow("RebuildNode", SlotOf<void()>(&N::RebuildNode), n++);
    AddRow("RebuildNode from", SlotOf<void(HNode *)>(&N::RebuildNode), n++);
    AddRow("GetThumbnail", SlotOf<QImage()>(&N::GetThumbnail), n++);
    AddRow("Editable", SlotOf<bool()>(&N::Editable), n++);
    AddRow("GetSDKTempFile", SlotOf<void(QList<QFileInfo> &)>(&N::GetSDKTempFile), n++);
    AddRow("TranscodeFinish", SlotOf<bool()>(&N::TranscodeFinish), n++);
    AddRow("Size", SlotOf<QSize()>(&N::Size), n++);
    AddRow("FrameHeight", SlotOf<int()>(&N::FrameHeight), n++);
    AddRow("Pos", SlotOf<QPoint()>(&N::Pos), n++);
    AddRow("ON_SizeChange", SlotOf<void(QSize)>(&N::ON_SizeChange), n++);
    AddRow("UseInternalBorder", SlotOf<bool()>(&N::UseInternalBorder), n++);
    AddRow("SourcNode", SlotOf<HNode *()>(&N::SourcNode), n++);
    // clang-format on
}

void TestSlots::ContentNodeAddsNone()
{
    struct OneMore : Lw::HContentNode
    {
        virtual void More() { }
    };
    QCOMPARE(SlotOf<void()>(&OneMore::More), kQObjectSlots + 41);
}

QTEST_GUILESS_MAIN(TestSlots)
#include "test_slots.moc"
