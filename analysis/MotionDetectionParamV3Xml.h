#pragma once

#include "analysis/IntelligeBaseParamXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// Motion in some cells of the picture: the "MotionDetectionParamV3" document.
///
/// A missing base part gives a new one, a missing "IsGetDetail" false; a missing "DetectionAreaV2" fails the reader,
/// and then the record is as it was.
///
/// The rule as a whole travels as a text only: the node operations are those of the base part.
class MotionDetectionParamV3Xml : public IntelligeBaseParamXml
{
public:
    MotionDetectionParamV3Xml();
    ~MotionDetectionParamV3Xml() override;

    bool createXmlString(const MotionDetectionParamV3& param, std::string& text);
    bool parseXmlString(const std::string& text, MotionDetectionParamV3& param);

    /// Adds the element "DetectionAreaV2" to @p node. False if that is empty, or if the cells cannot be written.
    bool createDetectionAreaV2ToDomainXmlNode(const DetectionAreaV2& area, SafePointer<DomainXmlNode>& node);
    /// Reads the child "DetectionAreaV2" of @p node. False without it.
    bool parseDetectionAreaV2ToDomainXmlNode(const SafePointer<DomainXmlNode>& node, DetectionAreaV2& area);

private:
    // A rule is written and read as a whole: what the base does with its own part is hidden.
    using IntelligeBaseParamXml::createXmlString;
    using IntelligeBaseParamXml::parseXmlString;
};
