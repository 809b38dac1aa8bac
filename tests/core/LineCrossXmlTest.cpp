#include "core/LineCrossXml.h"

#include "tests/support/Documents.h"

namespace
{

LineCross line(float startX, float startY, float endX, float endY)
{
    LineCross line;
    line.setLineCrossStartX(startX);
    line.setLineCrossStartY(startY);
    line.setLineCrossEndX(endX);
    line.setLineCrossEndY(endY);
    return line;
}

void expectLine(const LineCross& expected, const LineCross& line)
{
    EXPECT_EQ(expected.getLineCrossStartX(), line.getLineCrossStartX());
    EXPECT_EQ(expected.getLineCrossStartY(), line.getLineCrossStartY());
    EXPECT_EQ(expected.getLineCrossEndX(), line.getLineCrossEndX());
    EXPECT_EQ(expected.getLineCrossEndY(), line.getLineCrossEndY());
}

} // namespace

TEST(LineCrossXml, Writes)
{
    std::string text;
    ASSERT_TRUE(LineCrossXml().createXmlString(line(0.1F, 0.2F, 0.8F, -0.9F), text));
    EXPECT_TRUE(matchesGolden(text, "core/LineCrossXml.node.xml"));
}

TEST(LineCrossXml, Reads)
{
    LineCross read;
    ASSERT_TRUE(LineCrossXml().parseXmlString(golden("core/LineCrossXml.node.xml"), read));
    expectLine(line(0.1F, 0.2F, 0.8F, -0.9F), read);
}

TEST(LineCrossXml, LeavesWhatIsMissing)
{
    CapturedOutput output;
    LineCross read = line(1, 2, 3, 4);
    ASSERT_TRUE(LineCrossXml().parseXmlString("<LineCross LineCrossStartX='9' />", read));
    expectLine(line(9, 2, 3, 4), read);
    EXPECT_EQ("", output.text());
}

TEST(LineCrossXml, TakesWhatIsNoNumberForZero)
{
    LineCross read = line(1, 2, 3, 4);
    ASSERT_TRUE(LineCrossXml().parseXmlString("<LineCross LineCrossEndY='far' />", read));
    expectLine(line(1, 2, 3, 0), read);
}
