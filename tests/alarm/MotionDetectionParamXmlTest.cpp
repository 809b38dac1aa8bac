#include "alarm/MotionDetectionParamXml.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/alarm/MotionDetectionParamSample.h"
#include "tests/support/Documents.h"

#include <utility>

TEST(MotionDetectionParamXml, Writes)
{
    MotionDetectionParamXml codec;
    codec.setMotionDetectionParam(sampleMotionDetectionParam());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/MotionDetectionParamXml.document.xml"));
}

TEST(MotionDetectionParamXml, Reads)
{
    MotionDetectionParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionParamXml.document.xml")));
    expectMotionDetectionParam(sampleMotionDetectionParam(), codec.getMotionDetectionParam());
}

TEST(MotionDetectionParamXml, ResetsAttributesAndLeavesTheAreasThatAreMissing)
{
    MotionDetectionParamXml codec;
    codec.setMotionDetectionParam(sampleMotionDetectionParam());
    ASSERT_TRUE(reads(codec, "<MotionDetectionParam />"));
    MotionDetectionParam expected;
    expected.setDetectionArea(sampleMotionDetectionParam().getDetectionArea());
    expectMotionDetectionParam(expected, codec.getMotionDetectionParam());
}

TEST(MotionDetectionParamXml, AddsAreasBehindThoseThatAreThere)
{
    MotionDetectionParamXml codec;
    codec.getMotionDetectionParam().getDetectionArea().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionParamXml.document.xml")));
    expectDetectionAreas({DetectionArea(), sampleDetectionArea()}, codec.getMotionDetectionParam().getDetectionArea());
}

TEST(MotionDetectionParamXml, TellsItsFlagsApart)
{
    using Getter = bool (MotionDetectionParam::*)() const;
    const std::pair<const char*, Getter> flags[] = {{"ToUpCheckFlag", &MotionDetectionParam::getToUpCheckFlag},
                                                    {"ToDownCheckFlag", &MotionDetectionParam::getToDownCheckFlag},
                                                    {"ToLeftCheckFlag", &MotionDetectionParam::getToLeftCheckFlag},
                                                    {"ToRightCheckFlag", &MotionDetectionParam::getToRightCheckFlag},
                                                    {"AreaMaskFlag", &MotionDetectionParam::getAreaMaskFlag}};
    for (const auto& flag : flags)
    {
        MotionDetectionParamXml codec;
        ASSERT_TRUE(reads(codec, std::string("<MotionDetectionParam ") + flag.first + "='true' />"));
        MotionDetectionParamXml writer;
        writer.setMotionDetectionParam(codec.getMotionDetectionParam());
        const std::string text = written(writer);
        for (const auto& other : flags)
        {
            const bool set = &other == &flag;
            EXPECT_EQ(set, (codec.getMotionDetectionParam().*other.second)()) << flag.first << ' ' << other.first;
            EXPECT_EQ(set, text.find(std::string(other.first) + "=\"true\"") != std::string::npos) << text;
        }
    }
}
