#pragma once

#include "core/IDomainXml.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The scalable sub-streams of a camera: the "version" document.
///
/// The reader appends to the list. A missing attribute leaves its field as in a new record.
class SVCStreamParamXml : public IDomainXml
{
public:
    SVCStreamParamXml();
    ~SVCStreamParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSVCStreamParamList(const std::vector<SVCStreamParam>& streams) { streams_ = streams; }
    std::vector<SVCStreamParam>& getSVCStreamParamList() { return streams_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<SVCStreamParam>& streams);
    static bool readElement(const TiXmlElement& element, std::vector<SVCStreamParam>& streams);
    /// @}

private:
    std::vector<SVCStreamParam> streams_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
