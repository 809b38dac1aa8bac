#include "device/DeviceNodeInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceNodeInfo info(const std::string& domainName, const std::string& domainNode, const std::string& nodeFilePath)
{
    DeviceNodeInfo info;
    info.setDomainName(domainName);
    info.setDomainNode(domainNode);
    info.setNodeFilePath(nodeFilePath);
    return info;
}

void expectInfo(const DeviceNodeInfo& expected, const DeviceNodeInfo& info)
{
    EXPECT_EQ(expected.getDomainName(), info.getDomainName());
    EXPECT_EQ(expected.getDomainNode(), info.getDomainNode());
    EXPECT_EQ(expected.getNodeFilePath(), info.getNodeFilePath());
}

bool readsInfos(const std::string& text, std::vector<DeviceNodeInfo>& list)
{
    SafePointer<DomainXmlNode> node;
    EXPECT_TRUE(DomainXmlNode::parse(text, node));
    return DeviceNodeInfoXml().parseDomainXmlNode(node, list);
}

} // namespace

TEST(DeviceNodeInfoXml, WritesNothing)
{
    SafePointer<DomainXmlNode> empty;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Parent"));
    const std::vector<DeviceNodeInfo> list(1, info("video", "node7", "/cfg/node7"));
    EXPECT_FALSE(DeviceNodeInfoXml().createDomainXmlNode(list, node));
    EXPECT_FALSE(DeviceNodeInfoXml().createDomainXmlNode({}, node));
    EXPECT_FALSE(DeviceNodeInfoXml().createDomainXmlNode(list, empty));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<Parent />\n", text);
}

TEST(DeviceNodeInfoXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    std::vector<DeviceNodeInfo> list(1, info("before", "", ""));
    ASSERT_TRUE(readsInfos(golden("device/DeviceNodeInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectInfo(info("before", "", ""), list[0]);
    expectInfo(info("video", "node7", "/cfg/node7"), list[1]);
    expectInfo(info("alarm", "node8", "/cfg/node8"), list[2]);
    EXPECT_EQ("", output.text());
}

TEST(DeviceNodeInfoXml, ReadsItemsOfAnyName)
{
    std::vector<DeviceNodeInfo> list;
    ASSERT_TRUE(readsInfos("<Parent><DeviceNodeInfoList>text<!-- --><Other DomainName='a' DomainNode='b' />"
                           "</DeviceNodeInfoList></Parent>",
                           list));
    ASSERT_EQ(1U, list.size());
    expectInfo(info("a", "b", ""), list[0]);
    ASSERT_TRUE(readsInfos("<Parent><DeviceNodeInfoList /></Parent>", list));
    EXPECT_EQ(1U, list.size());
}

TEST(DeviceNodeInfoXml, PrintsALineForWhatAnItemLacks)
{
    CapturedOutput output;
    std::vector<DeviceNodeInfo> list;
    ASSERT_TRUE(readsInfos("<Parent><DeviceNodeInfoList><DeviceNodeInfo /></DeviceNodeInfoList></Parent>", list));
    EXPECT_EQ("DomainNodeFileManagerXml::initDomainNodeFileManager  getProperty strDomainName failed \n"
              "DomainNodeFileManagerXml::initDomainNodeFileManager  getProperty strDomainNode failed \n",
              output.text());
    ASSERT_EQ(1U, list.size());
    expectInfo(DeviceNodeInfo(), list[0]);
}

TEST(DeviceNodeInfoXml, RefusesANodeWithoutAList)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> empty;
    std::vector<DeviceNodeInfo> list(1, info("before", "", ""));
    EXPECT_FALSE(DeviceNodeInfoXml().parseDomainXmlNode(empty, list));
    EXPECT_FALSE(readsInfos("<Parent><!--DeviceNodeInfoList--></Parent>", list));
    EXPECT_FALSE(readsInfos("<DeviceNodeInfoList><DeviceNodeInfo /></DeviceNodeInfoList>", list));
    EXPECT_EQ(1U, list.size());
    EXPECT_EQ("", output.text());
}
