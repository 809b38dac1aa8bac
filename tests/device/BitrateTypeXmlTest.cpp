#include "device/BitrateTypeXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

namespace
{

BitrateType type(int id, const std::string& name)
{
    BitrateType type;
    type.setBitrateTypeId(id);
    type.setBitrateTypeName(name);
    return type;
}

BitrateType sample()
{
    return type(6, "Constant");
}

void expectBitrateType(const BitrateType& expected, const BitrateType& read)
{
    EXPECT_EQ(expected.getBitrateTypeId(), read.getBitrateTypeId());
    EXPECT_EQ(expected.getBitrateTypeName(), read.getBitrateTypeName());
}

} // namespace

TEST(BitrateTypeXml, Writes)
{
    BitrateTypeXml codec;
    codec.setBitrateType(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/BitrateTypeXml.document.xml"));
}

TEST(BitrateTypeXml, Reads)
{
    BitrateTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("device/BitrateTypeXml.document.xml")));
    expectBitrateType(sample(), codec.getBitrateType());
}

TEST(BitrateTypeXml, ResetsWhatIsMissing)
{
    BitrateTypeXml codec;
    codec.setBitrateType(sample());
    ASSERT_TRUE(reads(codec, "<BitrateType />"));
    expectBitrateType(BitrateType(), codec.getBitrateType());
}

TEST(BitrateTypeXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(BitrateTypeXml().createXmlString({sample(), type(7, "")}, text));
    EXPECT_TRUE(matchesGolden(text, "device/BitrateTypeXml.list.xml"));
    ASSERT_TRUE(BitrateTypeXml().createXmlString(std::vector<BitrateType>(), text));
    EXPECT_EQ("<BitrateTypeList />\n", text);
}

TEST(BitrateTypeXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<BitrateTypeList Old='1'><Child /></BitrateTypeList>", node));
    ASSERT_TRUE(BitrateTypeXml().createDomainXmlNode(std::vector<BitrateType>(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<BitrateTypeList Old=\"1\" />\n", text);
}

TEST(BitrateTypeXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<BitrateType> list(1, type(9, "before"));
    ASSERT_TRUE(BitrateTypeXml().parseXmlString(golden("device/BitrateTypeXml.list.xml"), list));
    expectList({type(9, "before"), sample(), type(7, "")}, list, expectBitrateType);
}

TEST(BitrateTypeXml, GivesNumberOneAndAnEmptyNameForWhatANodeLacks)
{
    CapturedOutput output;
    std::vector<BitrateType> list;
    ASSERT_TRUE(BitrateTypeXml().parseXmlString(
        "<BitrateTypeList>text<Other /><!-- --><BitrateType BitrateTypeId='x' /></BitrateTypeList>", list));
    expectList({type(1, ""), type(0, "")}, list, expectBitrateType);
    EXPECT_EQ("", output.text());
}

TEST(BitrateTypeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<BitrateType> list(1);
    EXPECT_FALSE(BitrateTypeXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(BitrateTypeXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
