#include "core/PolygonAreaXml.h"

#include "tests/support/Documents.h"

TEST(PolygonAreaXml, Writes)
{
    PolygonArea area;
    area.addPoint(0.25F, 0.5F);
    area.addPoint(0.1F, -3);
    std::string text;
    ASSERT_TRUE(PolygonAreaXml().createXmlString(area, text));
    EXPECT_TRUE(matchesGolden(text, "core/PolygonAreaXml.list.xml"));
}

TEST(PolygonAreaXml, ReadsBehindThePointsThatAreThere)
{
    PolygonArea area;
    area.addPoint(7, 8);
    ASSERT_TRUE(PolygonAreaXml().parseXmlString(golden("core/PolygonAreaXml.list.xml"), area));
    ASSERT_EQ(3U, area.getVecPoints().size());
    EXPECT_EQ(7, area.getVecPoints()[0].getX());
    EXPECT_EQ(8, area.getVecPoints()[0].getY());
    EXPECT_EQ(0.25F, area.getVecPoints()[1].getX());
    EXPECT_EQ(0.5F, area.getVecPoints()[1].getY());
    EXPECT_EQ(0.1F, area.getVecPoints()[2].getX());
    EXPECT_EQ(-3, area.getVecPoints()[2].getY());
}

TEST(PolygonAreaXml, TakesEveryElementForAPoint)
{
    PolygonArea area;
    ASSERT_TRUE(PolygonAreaXml().parseXmlString(
        "<PolygonArealist>text<!--ZTPoint--><Corner AttrXval='1' /><ZTPoint AttrYval='x' /></PolygonArealist>", area));
    ASSERT_EQ(2U, area.getVecPoints().size());
    EXPECT_EQ(1, area.getVecPoints()[0].getX());
    EXPECT_EQ(0, area.getVecPoints()[0].getY());
    EXPECT_EQ(0, area.getVecPoints()[1].getX());
    EXPECT_EQ(0, area.getVecPoints()[1].getY());
}

TEST(PolygonAreaXml, ReadsIntoAnAreaThatWasCleared)
{
    PolygonArea area;
    area.addPoint(7, 8);
    area.clear();
    EXPECT_TRUE(area.getVecPoints().empty());
    ASSERT_TRUE(PolygonAreaXml().parseXmlString(golden("core/PolygonAreaXml.list.xml"), area));
    EXPECT_EQ(2U, area.getVecPoints().size());
}
