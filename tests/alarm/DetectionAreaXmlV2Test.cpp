#include "alarm/DetectionAreaXmlV2.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/support/Documents.h"

#include <utility>

TEST(DetectionAreaXmlV2, Writes)
{
    DetectionAreaXmlV2 codec;
    codec.setDetectionAreaV2(sampleDetectionAreaV2());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/DetectionAreaXmlV2.document.xml"));
}

TEST(DetectionAreaXmlV2, Reads)
{
    DetectionAreaXmlV2 codec;
    ASSERT_TRUE(reads(codec, golden("alarm/DetectionAreaXmlV2.document.xml")));
    expectDetectionAreaV2(sampleDetectionAreaV2(), codec.getDetectionAreaV2());
}

TEST(DetectionAreaXmlV2, ResetsWhatIsMissing)
{
    DetectionAreaXmlV2 codec;
    codec.setDetectionAreaV2(sampleDetectionAreaV2());
    ASSERT_TRUE(reads(codec, "<DetectionAreaV2 />"));
    expectDetectionAreaV2(DetectionAreaV2(), codec.getDetectionAreaV2());
}

TEST(DetectionAreaXmlV2, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DetectionAreaXmlV2().createXmlString(sampleDetectionAreaV2(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/DetectionAreaXmlV2.node.xml"));
}

TEST(DetectionAreaXmlV2, ReadsNodes)
{
    CapturedOutput output;
    DetectionAreaV2 read;
    ASSERT_TRUE(DetectionAreaXmlV2().parseXmlString(golden("alarm/DetectionAreaXmlV2.node.xml"), read));
    expectDetectionAreaV2(sampleDetectionAreaV2(), read);
    EXPECT_EQ("", output.text());
}

TEST(DetectionAreaXmlV2, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    DetectionAreaV2 read = sampleDetectionAreaV2();
    ASSERT_TRUE(DetectionAreaXmlV2().parseXmlString("<DetectionAreaV2 />", read));
    expectDetectionAreaV2(DetectionAreaV2(), read);
    EXPECT_EQ(" DetectionAreaXmlV2::parseDomainXmlNode node = ATTR_DATA failed \n"
              " DetectionAreaXmlV2::parseDomainXmlNode node = ATTR_DATALENGTH failed \n",
              output.text());
}

TEST(DetectionAreaXmlV2, AnswersToBothNamesOfItsRecord)
{
    DetectionAreaXmlV2 codec;
    codec.setDetectionArea(sampleDetectionAreaV2());
    expectDetectionAreaV2(sampleDetectionAreaV2(), codec.getDetectionAreaV2());
    EXPECT_EQ(&codec.getDetectionArea(), &codec.getDetectionAreaV2());
    EXPECT_EQ(0, codec.createXmlNode());
}

TEST(DetectionAreaXmlV2, CarriesAnEmptyMap)
{
    const std::string expected =
        "<DetectionAreaV2 WidthCellNumber=\"0\" HighCellNumber=\"0\" Data=\"\" DataLength=\"0\" />\n";
    DetectionAreaXmlV2 codec;
    EXPECT_EQ(expected, written(codec));
    std::string text;
    ASSERT_TRUE(DetectionAreaXmlV2().createXmlString(DetectionAreaV2(), text));
    EXPECT_EQ(expected, text);

    DetectionAreaXmlV2 reader;
    reader.setDetectionAreaV2(sampleDetectionAreaV2());
    ASSERT_TRUE(reads(reader, expected));
    expectDetectionAreaV2(DetectionAreaV2(), reader.getDetectionAreaV2());
}

TEST(DetectionAreaXmlV2, TakesNoMoreOfAMapThanThereIs)
{
    // "YWJj" are the three bytes "abc".
    const std::pair<const char*, const char*> maps[] = {{"Data='YWJj' DataLength='3'", "abc"},
                                                        {"Data='YWJj' DataLength='2'", "ab"},
                                                        {"Data='YWJj' DataLength='400'", "abc"},
                                                        {"Data='YWJj' DataLength='2147483647'", "abc"},
                                                        {"Data='YWJj' DataLength='-1'", ""},
                                                        {"Data='YWJj' DataLength='none'", ""},
                                                        {"Data='YWJ' DataLength='3'", ""},
                                                        {"Data='Y*Jj' DataLength='3'", ""},
                                                        {"Data='====' DataLength='3'", ""},
                                                        {"Data='' DataLength='3'", ""},
                                                        {"Data='YWJj'", ""},
                                                        {"DataLength='3'", ""}};
    CapturedOutput output;
    for (const auto& map : maps)
    {
        const std::string text = std::string("<DetectionAreaV2 WidthCellNumber='1' ") + map.first + " />";
        DetectionAreaXmlV2 codec;
        codec.setDetectionAreaV2(sampleDetectionAreaV2());
        ASSERT_TRUE(reads(codec, text));
        EXPECT_EQ(map.second, std::string(codec.getDetectionAreaV2().getData(),
                                          static_cast<std::size_t>(codec.getDetectionAreaV2().getDataLength())))
            << text;
        EXPECT_EQ(1, codec.getDetectionAreaV2().getWidthCellNumber());

        DetectionAreaV2 read = sampleDetectionAreaV2();
        ASSERT_TRUE(DetectionAreaXmlV2().parseXmlString(text, read));
        EXPECT_EQ(map.second, std::string(read.getData(), static_cast<std::size_t>(read.getDataLength()))) << text;
    }
}

TEST(DetectionAreaXmlV2, CarriesAMapOfEveryLength)
{
    for (int length = 0; length < 300; ++length)
    {
        std::string bytes;
        for (int number = 0; number < length; ++number)
            bytes.push_back(static_cast<char>(number * 7 + length));
        DetectionAreaV2 area;
        area.setData(bytes.data(), length);
        DetectionAreaXmlV2 codec;
        codec.setDetectionAreaV2(area);
        DetectionAreaXmlV2 reader;
        ASSERT_TRUE(reads(reader, written(codec)));
        expectDetectionAreaV2(area, reader.getDetectionAreaV2());
    }
}

TEST(DetectionAreaXmlV2, KeepsNoMapOfNothing)
{
    DetectionAreaV2 area = sampleDetectionAreaV2();
    area.setData(nullptr, 5);
    EXPECT_EQ(0, area.getDataLength());
    area.setData("abc", -1);
    EXPECT_EQ(0, area.getDataLength());
}

TEST(DetectionAreaXmlV2, TakesAMapFromItself)
{
    DetectionAreaV2 area = sampleDetectionAreaV2();
    area.setData(area.getData(), 4);
    expectDetectionAreaV2(sampleDetectionAreaV2(), area);
    area.setData(area.getData() + 2, 2);
    EXPECT_EQ("\xFF\x80", std::string(area.getData(), static_cast<std::size_t>(area.getDataLength())));
}

TEST(DetectionAreaXmlV2, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DetectionAreaV2 read = sampleDetectionAreaV2();
    EXPECT_FALSE(DetectionAreaXmlV2().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DetectionAreaXmlV2().parseDomainXmlNode(empty, read));
    expectDetectionAreaV2(sampleDetectionAreaV2(), read);
}
