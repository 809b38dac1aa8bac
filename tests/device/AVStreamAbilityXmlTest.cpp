#include "device/AVStreamAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(AVStreamAbilityXml, Writes)
{
    AVStreamAbilityXml codec;
    codec.setAVStreamAbility(sampleAVStreamAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AVStreamAbilityXml.document.xml"));
}

TEST(AVStreamAbilityXml, Reads)
{
    AVStreamAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AVStreamAbilityXml.document.xml")));
    expectAVStreamAbility(sampleAVStreamAbility(), codec.getAVStreamAbility());
}

TEST(AVStreamAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AVStreamAbilityXml().createXmlString(sampleAVStreamAbility(), text));
    EXPECT_TRUE(matchesGolden(text, "device/AVStreamAbilityXml.node.xml"));
}

TEST(AVStreamAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    AVStreamAbility read;
    ASSERT_TRUE(AVStreamAbilityXml().parseXmlString(golden("device/AVStreamAbilityXml.node.xml"), read));
    expectAVStreamAbility(sampleAVStreamAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(AVStreamAbilityXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    AVStreamAbility read = sampleAVStreamAbility();
    ASSERT_TRUE(AVStreamAbilityXml().parseXmlString("<AVStreamAbility />", read));
    expectAVStreamAbility(AVStreamAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(AVStreamAbilityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AVStreamAbility read = sampleAVStreamAbility();
    EXPECT_FALSE(AVStreamAbilityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AVStreamAbilityXml().parseDomainXmlNode(empty, read));
    expectAVStreamAbility(sampleAVStreamAbility(), read);
}

TEST(AVStreamAbilityXml, LeavesValuesAndRenewsRecordsThatAreMissing)
{
    AVStreamAbility expected = sampleAVStreamAbility();
    expected.setAVStreamAttributeAbility(AVStreamAttributeAbility());
    expected.getAVStreamAttributeAbility().setStreamMode(1);
    expected.setROIAbility(ROIAbility());
    for (const char* content : {"", "text<!-- -->", "<AVStreamAttributeAbility /><ROIAbility ROIMaxNum='9' />"})
    {
        AVStreamAbilityXml codec;
        codec.setAVStreamAbility(sampleAVStreamAbility());
        ASSERT_TRUE(reads(codec, std::string("<AVStreamAbility>") + content + "</AVStreamAbility>"));
        expectAVStreamAbility(expected, codec.getAVStreamAbility());
    }
}

TEST(AVStreamAbilityXml, GivesStreamModeOneWithoutAnElementBehindTheStreamId)
{
    AVStreamAbilityXml codec;
    codec.setAVStreamAbility(sampleAVStreamAbility());
    ASSERT_TRUE(reads(codec, "<AVStreamAbility><AVStreamAttributeAbility><StreamMode value='7' />"
                             "</AVStreamAttributeAbility><StreamId value='3' />text<!-- --></AVStreamAbility>"));
    EXPECT_EQ(3, codec.getAVStreamAbility().getStreamId());
    AVStreamAttributeAbility expected;
    expected.setStreamMode(1);
    expectAVStreamAttributeAbility(expected, codec.getAVStreamAbility().getAVStreamAttributeAbility());
}

TEST(AVStreamAbilityXml, ReadsTheElementsBehindItsValuesWhateverTheirNames)
{
    AVStreamAbilityXml codec;
    codec.setAVStreamAbility(sampleAVStreamAbility());
    ASSERT_TRUE(reads(codec,
                      "<AVStreamAbility><StreamId /><!-- -->text<Other><StreamMode value='8' /></Other>"
                      "<AVStreamAttributeAbility /><SupportROI /><!-- -->text<Other ROIMaxNum='9' /><ROIAbility />"
                      "</AVStreamAbility>"));
    AVStreamAbility expected = sampleAVStreamAbility();
    expected.setAVStreamAttributeAbility(AVStreamAttributeAbility());
    expected.getAVStreamAttributeAbility().setStreamMode(8);
    expected.setROIAbility(ROIAbility());
    expected.getROIAbility().setROIMaxNum(9);
    expectAVStreamAbility(expected, codec.getAVStreamAbility());
}

TEST(AVStreamAbilityXml, TakesTheSupportFlagForTheAttributeAbilityIfThatIsLeftOut)
{
    AVStreamAbilityXml codec;
    ASSERT_TRUE(reads(codec, "<AVStreamAbility><StreamId value='3' /><SupportROI value='true' /></AVStreamAbility>"));
    EXPECT_TRUE(codec.getAVStreamAbility().getSupportROI());
    expectAVStreamAttributeAbility(AVStreamAttributeAbility(),
                                   codec.getAVStreamAbility().getAVStreamAttributeAbility());
}

TEST(AVStreamAbilityXml, TakesNoOtherTextThanTrueForTrueInDocuments)
{
    for (const char* text : {"false", "1", "TRUE", "true ", ""})
    {
        AVStreamAbilityXml codec;
        codec.getAVStreamAbility().setSupportROI(true);
        ASSERT_TRUE(
            reads(codec, std::string("<AVStreamAbility><SupportROI value='") + text + "' /></AVStreamAbility>"));
        EXPECT_FALSE(codec.getAVStreamAbility().getSupportROI()) << text;
    }
}

TEST(AVStreamAbilityXml, AddsToItsList)
{
    AVStreamAbilityXml codec;
    codec.setAVStreamAbility(sampleAVStreamAbility());
    ASSERT_TRUE(reads(codec, golden("device/AVStreamAbilityXml.document.xml")));
    AVStreamAbility expected = sampleAVStreamAbility();
    expected.getStreamEncodeAbilityList().push_back(sampleStreamEncodeAbility());
    expectAVStreamAbility(expected, codec.getAVStreamAbility());
}

TEST(AVStreamAbilityXml, FindsTheChildrenOfANodeByTheirNames)
{
    // A document form reads "Other", which stands in the place of both records.
    const char* text =
        "<AVStreamAbility><ROIAbility ROIMaxNum='9' /><AVStreamAttributeAbility StreamMode='8' />"
        "<SupportROI value='true' /><Other ROIMaxNum='7'><StreamMode value='6' /></Other>"
        "<StreamId value='3' /><Other><StreamMode value='5' /></Other><StreamEncodeAbilityList /></AVStreamAbility>";
    AVStreamAbility read = sampleAVStreamAbility();
    ASSERT_TRUE(AVStreamAbilityXml().parseXmlString(text, read));
    AVStreamAbility expected;
    expected.setStreamId(3);
    expected.getAVStreamAttributeAbility().setStreamMode(8);
    expected.setSupportROI(true);
    expected.getROIAbility().setROIMaxNum(9);
    expectAVStreamAbility(expected, read);

    AVStreamAbilityXml codec;
    ASSERT_TRUE(reads(codec, text));
    expected.getAVStreamAttributeAbility().setStreamMode(5);
    expected.getROIAbility().setROIMaxNum(7);
    // What is read as the regions has one child, and that counts as an entry.
    expected.getROIAbility().setLevelQPMap({{0, 0}});
    expectAVStreamAbility(expected, codec.getAVStreamAbility());
}

TEST(AVStreamAbilityXml, PrintsTheLinesOfTheChildrenOfANode)
{
    CapturedOutput output;
    AVStreamAbility read;
    ASSERT_TRUE(AVStreamAbilityXml().parseXmlString("<AVStreamAbility><StreamEncodeAbilityList><StreamEncodeAbility />"
                                                    "</StreamEncodeAbilityList><StreamId /><AVStreamAttributeAbility />"
                                                    "<SupportROI /><ROIAbility /></AVStreamAbility>",
                                                    read));
    EXPECT_EQ("StreamEncodeAbilityXml::parseDomainXmlNode get EncoderType failed \n"
              "AVStreamAttributeAbilityXml::parseDomainXmlNode get StreamMode failed \n",
              output.text());
    AVStreamAbility expected;
    expected.getStreamEncodeAbilityList().resize(1);
    expectAVStreamAbility(expected, read);
}
