// The stand-in's answers for the operations of a node that plugins do not override.
#include "hcontentnode.h"

#include <QDomDocument>
#include <QtTest>

using Lw::HContentNode;
using Lw::HNode;

class TestHNode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DefaultsOfANode();
    void SizeAndPlace();
    void SizeChangeIsTaken();
    void FilesToSendAreTheRecordedOnes();
    void TakesPartInUpdateIsAFlag();
    void GuidThroughTheNodeIsTheStoresGuid();
    void ChildIsOwned();
    void ChildThatCannotBeOneIsRefused();
    void ChildMovesBetweenParents();
    void DeleteHappensInTheEventLoop();
};

void TestHNode::DefaultsOfANode()
{
    HContentNode node;
    QDomElement element;
    QList<Lw::FileInfo> files;
    QVERIFY(!node.SDKInitData(nullptr));
    QVERIFY(!node.Editable());
    QVERIFY(!node.TranscodeFinish());
    QVERIFY(!node.UseInternalBorder());
    QVERIFY(!node.NodeMatch(element));
    QVERIFY(!node.UpdateNode(element, files));
    QCOMPARE(node.Type(), QString());
    QVERIFY(node.GetThumbnail().isNull());
    QVERIFY(!node.SourcNode());
    node.ReloadAttrbute(nullptr);
    node.CoverToSDKFormate(element, Lw::ProgramForController);
    node.InitData();
    QVERIFY(node.AttributeKeys().isEmpty());
}

void TestHNode::SizeAndPlace()
{
    HContentNode node;
    QCOMPARE(node.Size(), QSize(-1, -1));
    QCOMPARE(node.Pos(), QPoint(0, 0));
    node.SetSize(QSize(64, 32));
    node.SetPos(QPoint(-5, 7));
    QCOMPARE(node.Size(), QSize(64, 32));
    QCOMPARE(node.FrameHeight(), 32);
    QCOMPARE(node.Pos(), QPoint(-5, 7));
}

void TestHNode::SizeChangeIsTaken()
{
    HContentNode node;
    node.ON_SizeChange(QSize(10, 20));
    QCOMPARE(node.Size(), QSize(10, 20));
}

void TestHNode::FilesToSendAreTheRecordedOnes()
{
    HContentNode node;
    node.SetFilePath("_lunar", "/lunar.png", "d1", -1, 3);
    node.SetFilePath("_space", "/space.png", "d2", -1, 3);
    QList<Lw::HSendFileInfo> files;
    files.append({"/before", "", 0, {}});
    node.GetAllFileList(files);
    QCOMPARE(files.size(), 3);
    QCOMPARE(files.at(1).path, QString("/lunar.png"));
    QCOMPARE(files.at(1).md5, QString("d1"));
    QCOMPARE(files.at(2).path, QString("/space.png"));
    QCOMPARE(node.TotalFile(), 2);
    QVERIFY(node.HaveSourcFile());
}

void TestHNode::TakesPartInUpdateIsAFlag()
{
    HContentNode node;
    QVERIFY(!node.TakesPartInUpdate());
    node.SetTakesPartInUpdate(true);
    QVERIFY(node.TakesPartInUpdate());
}

void TestHNode::GuidThroughTheNodeIsTheStoresGuid()
{
    HContentNode node;
    static_cast<Lw::HData &>(node).SetGuid("{2}");
    QCOMPARE(node.GetGuid(), QString("{2}"));
}

void TestHNode::ChildIsOwned()
{
    auto *const parent = new HNode;
    const QPointer<HNode> first(new HNode);
    const QPointer<HNode> second(new HNode);
    QVERIFY(parent->AddChild(first));
    QVERIFY(parent->InsertChild(0, second));
    delete parent;
    QVERIFY(!first);
    QVERIFY(!second);
}

void TestHNode::ChildThatCannotBeOneIsRefused()
{
    HNode top;
    auto *const inner = new HNode;
    QVERIFY(top.AddChild(inner));
    QVERIFY(!top.AddChild(nullptr));
    QVERIFY(!top.AddChild(&top));
    QVERIFY(!inner->AddChild(&top));
    HNode other;
    QVERIFY(!top.InsertChild(-1, &other));
    QVERIFY(!other.parent());
}

void TestHNode::ChildMovesBetweenParents()
{
    HNode first;
    HNode second;
    auto *const child = new HNode;
    QVERIFY(first.AddChild(child));
    QVERIFY(second.AddChild(child));
    QVERIFY(first.children().isEmpty());
    QCOMPARE(child->parent(), &second);
}

void TestHNode::DeleteHappensInTheEventLoop()
{
    const QPointer<HNode> node(new HNode);
    node->Delete();
    QVERIFY(node);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!node);
}

QTEST_GUILESS_MAIN(TestHNode)
#include "test_hnode.moc"
