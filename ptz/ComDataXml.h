#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// Raw bytes for or from a serial port: the "ComData" document.
///
/// The bytes travel as text, so a zero byte ends what is written of them. The reader takes no more than the text has,
/// whatever its length says; where either attribute is missing, or the length is below 0, the buffer becomes empty.
class ComDataXml : public IDomainXml
{
public:
    ComDataXml();
    ~ComDataXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setComData(const ComData& data) { data_ = data; }
    ComData& getComData() { return data_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ComData& data);
    static bool readElement(const TiXmlElement& element, ComData& data);
    /// @}

private:
    ComData data_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
