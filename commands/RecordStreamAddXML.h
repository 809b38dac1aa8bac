#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Gives a playback what it is to play: the "RecordStreamAdd" document.
///
/// A missing attribute leaves its field. A missing "RecordInfoList" leaves the recordings; one that is there replaces
/// them. A malformed text gives false and a line; one with another root gives false.
class RecordStreamAddXML : public IDomainXml
{
public:
    RecordStreamAddXML();
    ~RecordStreamAddXML() override;

    /// Number of the playback, which the answer to its opening gave.
    int getManagerId() const { return managerId_; }
    void setManagerId(int managerId) { managerId_ = managerId; }

    /// The data channel that is to carry it: the number that `DataChannelResponseXml` gave.
    int getDataChannelId() const { return dataChannelId_; }
    void setDataChannelId(int dataChannelId) { dataChannelId_ = dataChannelId; }

    /// The recordings, in the order in which they are to be played.
    /// @{
    const std::vector<RecordInfo>& getRecordInfoList() const { return recordInfoList_; }
    std::vector<RecordInfo>& getRecordInfoList() { return recordInfoList_; }
    void setRecordInfoList(const std::vector<RecordInfo>& recordInfoList) { recordInfoList_ = recordInfoList; }
    /// @}

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
    int dataChannelId_ = 0;
    std::vector<RecordInfo> recordInfoList_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
