#include "snapshot/SnapshotParamExXml.h"

#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

SnapshotStorageParam storage(int type, const std::string& address)
{
    SnapshotStorageParam storage;
    storage.setServerType(type);
    storage.setServerAddress(address);
    return storage;
}

SnapshotParamEX sample()
{
    SnapshotParamEX param;
    param.setSnapshotStorageParamList({storage(1, "192.0.2.1/a"), storage(2, "192.0.2.2/b")});
    return param;
}

void expectStorages(const std::vector<SnapshotStorageParam>& expected, const SnapshotParamEX& param)
{
    ASSERT_EQ(expected.size(), param.getSnapshotStorageParamList().size());
    for (std::size_t number = 0; number < expected.size(); ++number)
    {
        const SnapshotStorageParam& read = param.getSnapshotStorageParamList()[number];
        EXPECT_EQ(expected[number].getServerType(), read.getServerType());
        EXPECT_EQ(expected[number].getServerAddress(), read.getServerAddress());
    }
}

} // namespace

TEST(SnapshotParamExXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SnapshotParamExXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/SnapshotParamExXml.node.xml"));
    ASSERT_TRUE(SnapshotParamExXml().createXmlString(SnapshotParamEX(), text));
    EXPECT_EQ("<SnapshotParamEX />\n", text);
}

TEST(SnapshotParamExXml, ReadsNodes)
{
    SnapshotParamEX read;
    ASSERT_TRUE(SnapshotParamExXml().parseXmlString(golden("snapshot/SnapshotParamExXml.node.xml"), read));
    expectStorages({storage(1, "192.0.2.1/a"), storage(2, "192.0.2.2/b")}, read);
}

TEST(SnapshotParamExXml, ReplacesTheServersByThoseThatAreThere)
{
    CapturedOutput output;
    SnapshotParamEX read = sample();
    ASSERT_TRUE(SnapshotParamExXml().parseXmlString(
        "<SnapshotParamEX><Other ServerType='3' /><SnapshotStorageParam />text<!-- -->"
        "<SnapshotStorageParam ServerPath='c' ServerType='4x' /></SnapshotParamEX>",
        read));
    expectStorages({SnapshotStorageParam(), storage(4, "c")}, read);
    ASSERT_TRUE(SnapshotParamExXml().parseXmlString("<SnapshotParamEX />", read));
    expectStorages({}, read);
    EXPECT_EQ("", output.text());
}

TEST(SnapshotParamExXml, RefusesTheRootOfAnotherSpelling)
{
    SnapshotParamEX read = sample();
    EXPECT_FALSE(SnapshotParamExXml().parseXmlString("<SnapshotParamEx />", read));
    EXPECT_EQ(2U, read.getSnapshotStorageParamList().size());
}

TEST(SnapshotParamExXml, WritesAndReadsOneServer)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("SnapshotStorageParam"));
    ASSERT_TRUE(SnapshotParamExXml().createSnapshotStorageParam(storage(1, "a"), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<SnapshotStorageParam ServerType=\"1\" ServerPath=\"a\" />\n", text);

    SnapshotParamEX read;
    read.getSnapshotStorageParamList().push_back(storage(9, "z"));
    ASSERT_TRUE(SnapshotParamExXml().parseSnapshotStorageParam(node, read.getSnapshotStorageParamList()[0]));
    expectStorages({storage(1, "a")}, read);
}

TEST(SnapshotParamExXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SnapshotParamEX read = sample();
    SnapshotStorageParam server = storage(1, "a");
    EXPECT_FALSE(SnapshotParamExXml().create(read, empty));
    EXPECT_FALSE(SnapshotParamExXml().parse(empty, read));
    EXPECT_FALSE(SnapshotParamExXml().createSnapshotStorageParam(server, empty));
    EXPECT_FALSE(SnapshotParamExXml().parseSnapshotStorageParam(empty, server));
    EXPECT_EQ(2U, read.getSnapshotStorageParamList().size());
    EXPECT_EQ(1, server.getServerType());
}
