#include "tests/suite/Codecs.h"

#include "commands/AVDataQueueXml.h"
#include "commands/AlarmChannelCloseXml.h"
#include "commands/AlarmChannelRequestXml.h"
#include "commands/AlarmChannelResponseXml.h"
#include "commands/AudioInfoXml.h"
#include "commands/AudioStreamCloseXml.h"
#include "commands/AudioStreamRequestXml.h"
#include "commands/CMSStreamParamXml.h"
#include "commands/ChangeAVStreamXml.h"
#include "commands/DataChannelRequestXml.h"
#include "commands/DataChannelResponseXml.h"
#include "commands/DecoderCloseXml.h"
#include "commands/DecoderRequestXml.h"
#include "commands/DecoderResponseXml.h"
#include "commands/DecoderWindowModeXml.h"
#include "commands/IntelligenceAnalyseStreamRequestXml.h"
#include "commands/InterPhoneCloseXml.h"
#include "commands/InterPhoneRequestXml.h"
#include "commands/InterPhoneResponseXml.h"
#include "commands/MakeKeyFrameXml.h"
#include "commands/MicrophoneCloseXml.h"
#include "commands/MicrophoneRequestXml.h"
#include "commands/MicrophoneResponseXml.h"
#include "commands/PTZChannelCloseXml.h"
#include "commands/PTZChannelRequestXml.h"
#include "commands/PTZChannelResponseXml.h"
#include "commands/PlayExceptionXML.h"
#include "commands/RS485ChannelCloseXml.h"
#include "commands/RS485ChannelResponseXml.h"
#include "commands/RS485DataXml.h"
#include "commands/RecordStreamAddXML.h"
#include "commands/RecordStreamCloseXml.h"
#include "commands/RecordStreamCtrlXml.h"
#include "commands/RecordStreamOpenXml.h"
#include "commands/RecordStreamRemoveXML.h"
#include "commands/RecordStreamResponseXml.h"
#include "commands/StreamURIRequestXml.h"
#include "commands/StreamURIResponseXml.h"
#include "commands/StreamlInfoXml.h"
#include "commands/VideoInfoXml.h"
#include "commands/VideoStreamCloseXml.h"
#include "commands/VideoStreamCtrlXml.h"
#include "commands/VideoStreamRequestXml.h"
#include "commands/VideoStreamResponseXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> commandsCodecs()
{
    return {
        // clang-format off
        {"commands", "AVDataQueueXml", "document", rewriteDocument<AVDataQueueXml>},
        {"commands", "AlarmChannelCloseXml", "document", rewriteDocument<AlarmChannelCloseXml>},
        {"commands", "AlarmChannelRequestXml", "document", rewriteDocument<AlarmChannelRequestXml>},
        {"commands", "AlarmChannelResponseXml", "document", rewriteDocument<AlarmChannelResponseXml>},
        {"commands", "AudioInfoXml", "document", rewriteDocument<AudioInfoXml>},
        {"commands", "AudioStreamCloseXml", "document", rewriteDocument<AudioStreamCloseXml>},
        {"commands", "AudioStreamRequestXml", "document", rewriteDocument<AudioStreamRequestXml>},
        {"commands", "CMSStreamParamXml", "document", rewriteDocument<CMSStreamParamXml>},
        {"commands", "ChangeAVStreamXml", "document", rewriteDocument<ChangeAVStreamXml>},
        {"commands", "DataChannelRequestXml", "document", rewriteDocument<DataChannelRequestXml>},
        {"commands", "DataChannelResponseXml", "document", rewriteDocument<DataChannelResponseXml>},
        {"commands", "DecoderCloseXml", "document", rewriteDocument<DecoderCloseXml>},
        {"commands", "DecoderRequestXml", "document", rewriteDocument<DecoderRequestXml>},
        {"commands", "DecoderResponseXml", "document", rewriteDocument<DecoderResponseXml>},
        {"commands", "DecoderWindowModeXml", "document", rewriteDocument<DecoderWindowModeXml>},
        {"commands", "IntelligenceAnalyseStreamRequestXml", "element", rewriteBackedDocument<IntelligenceAnalyseStreamRequestXml>},
        {"commands", "InterPhoneCloseXml", "document", rewriteDocument<InterPhoneCloseXml>},
        {"commands", "InterPhoneRequestXml", "document", rewriteDocument<InterPhoneRequestXml>},
        {"commands", "InterPhoneResponseXml", "document", rewriteDocument<InterPhoneResponseXml>},
        {"commands", "MakeKeyFrameXml", "document", rewriteDocument<MakeKeyFrameXml>},
        {"commands", "MicrophoneCloseXml", "document", rewriteDocument<MicrophoneCloseXml>},
        {"commands", "MicrophoneRequestXml", "document", rewriteDocument<MicrophoneRequestXml>},
        {"commands", "MicrophoneResponseXml", "document", rewriteDocument<MicrophoneResponseXml>},
        {"commands", "PTZChannelCloseXml", "document", rewriteDocument<PTZChannelCloseXml>},
        {"commands", "PTZChannelRequestXml", "document", rewriteDocument<PTZChannelRequestXml>},
        {"commands", "PTZChannelResponseXml", "document", rewriteDocument<PTZChannelResponseXml>},
        {"commands", "PlayExceptionXML", "document", rewriteDocument<PlayExceptionXML>},
        {"commands", "RS485ChannelCloseXml", "document", rewriteDocument<RS485ChannelCloseXml>},
        {"commands", "RS485ChannelResponseXml", "document", rewriteDocument<RS485ChannelResponseXml>},
        {"commands", "RS485DataXml", "document", rewriteDocument<RS485DataXml>},
        {"commands", "RecordStreamAddXML", "document", rewriteDocument<RecordStreamAddXML>},
        {"commands", "RecordStreamCloseXml", "document", rewriteDocument<RecordStreamCloseXml>},
        {"commands", "RecordStreamCtrlXml", "document", rewriteDocument<RecordStreamCtrlXml>},
        {"commands", "RecordStreamOpenXml", "document", rewriteDocument<RecordStreamOpenXml>},
        {"commands", "RecordStreamRemoveXML", "document", rewriteDocument<RecordStreamRemoveXML>},
        {"commands", "RecordStreamResponseXml", "document", rewriteDocument<RecordStreamResponseXml>},
        {"commands", "StreamURIRequestXml", "document", rewriteDocument<StreamURIRequestXml>},
        {"commands", "StreamURIResponseXml", "document", rewriteDocument<StreamURIResponseXml>},
        {"commands", "StreamlInfoXml", "node", rewriteText<StreamlInfoXml, StreamlInfo>},
        {"commands", "VideoInfoXml", "document", rewriteDocument<VideoInfoXml>},
        {"commands", "VideoStreamCloseXml", "document", rewriteDocument<VideoStreamCloseXml>},
        {"commands", "VideoStreamCtrlXml", "document", rewriteDocument<VideoStreamCtrlXml>},
        {"commands", "VideoStreamRequestXml", "document", rewriteDocument<VideoStreamRequestXml>},
        {"commands", "VideoStreamResponseXml", "document", rewriteDocument<VideoStreamResponseXml>},
        // reads a root of any name, as an element
        // clang-format on
    };
}
