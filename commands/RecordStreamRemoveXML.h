#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Takes a receiver out of a playback: the "RecordStreamRemoveCommand" document.
///
/// A missing attribute leaves its field.
class RecordStreamRemoveXML : public IDomainXml
{
public:
    RecordStreamRemoveXML();
    ~RecordStreamRemoveXML() override;

    /// Number of the playback, which the answer to its opening gave.
    int getManagerId() const { return managerId_; }
    void setManagerId(int managerId) { managerId_ = managerId; }

    /// Number of the one that receives the playback.
    int getConsumerId() const { return consumerId_; }
    void setConsumerId(int consumerId) { consumerId_ = consumerId; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    int managerId_ = 0;
    int consumerId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
