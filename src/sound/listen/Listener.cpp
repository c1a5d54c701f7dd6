// SPDX-License-Identifier: MIT
#include "sound/listen/Listener.h"

#include "sound/listen/SoundFile.h"

#include <chromaprint.h>

#include <array>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
#include <libswresample/swresample.h>
}

namespace songsweep {

namespace {

constexpr int sampleRate = 11025; // the fingerprint's own
constexpr int secondsHeard = 60;
constexpr int longestMix = sampleRate * secondsHeard;
constexpr int mostPackets = 200'000; // a minute has a few thousand
constexpr std::size_t largestBlock = std::size_t{256} << 20;

constexpr const char* containers = "mp3,aac,mov,mp4,m4a,3gp,3g2,mj2,flac,ogg,wav,w64,aiff,caf,asf,ape,wv,"
                                   "matroska,webm,mpc,mpc8,tta,dsf,amr,ac3,au,aa";
constexpr const char* codecs =
    "mp3float,mp3,mp2float,mp2,aac,alac,flac,opus,libopus,vorbis,libvorbis,wmav1,wmav2,wmapro,wmalossless,"
    "ape,"
    "wavpack,tta,mpc7,mpc8,ac3,eac3,amrnb,amrwb,pcm_s8,pcm_u8,pcm_s16le,pcm_s16be,pcm_s24le,pcm_s24be,"
    "pcm_s32le,pcm_s32be,pcm_f32le,pcm_f32be,pcm_f64le,pcm_alaw,pcm_mulaw,adpcm_ms,adpcm_ima_wav,"
    "adpcm_ima_qt,dsd_lsbf,dsd_msbf,dsd_lsbf_planar,dsd_msbf_planar";

template <auto freeIt>
struct Free {
    template <typename T>
    void operator()(T* thing) const {
        freeIt(&thing);
    }
};
struct FreeChromaprint {
    void operator()(ChromaprintContext* context) const { chromaprint_free(context); }
};

using Container = std::unique_ptr<AVFormatContext, Free<avformat_close_input>>;
using Codec = std::unique_ptr<AVCodecContext, Free<avcodec_free_context>>;
using Packet = std::unique_ptr<AVPacket, Free<av_packet_free>>;
using Frame = std::unique_ptr<AVFrame, Free<av_frame_free>>;
using Resampler = std::unique_ptr<SwrContext, Free<swr_free>>;
using Chromaprint = std::unique_ptr<ChromaprintContext, FreeChromaprint>;

/// Sound on its way from the codec to the fingerprint.
class FingerprintMaker {
  public:
    FingerprintMaker()
        : m_chromaprint(chromaprint_new(CHROMAPRINT_ALGORITHM_DEFAULT)) {
        chromaprint_start(m_chromaprint.get(), sampleRate, 1);
    }

    bool isComplete() const { return m_samples >= longestMix; }

    /// False where the sound cannot be converted.
    bool add(const AVFrame& frame) {
        if (!m_resampler && !open(frame)) return false;
        std::array<std::int16_t, sampleRate> buffer{};
        std::uint8_t* out[] = {reinterpret_cast<std::uint8_t*>(buffer.data())};
        const auto** in = const_cast<const std::uint8_t**>(frame.extended_data);
        int count = swr_convert(m_resampler.get(), out, sampleRate, in, frame.nb_samples);
        while (count > 0 && !isComplete()) {
            chromaprint_feed(m_chromaprint.get(), buffer.data(), std::min(count, longestMix - m_samples));
            m_samples += count;
            count = swr_convert(m_resampler.get(), out, sampleRate, nullptr, 0); // what had no room
        }
        return count >= 0;
    }

    Fingerprint finish() {
        chromaprint_finish(m_chromaprint.get());
        std::uint32_t* items = nullptr;
        int count = 0;
        chromaprint_get_raw_fingerprint(m_chromaprint.get(), &items, &count);
        Fingerprint fingerprint(items, items + count);
        chromaprint_dealloc(items);
        return fingerprint;
    }

  private:
    bool open(const AVFrame& frame) {
        AVChannelLayout in = {};
        if (frame.ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
            av_channel_layout_default(&in, frame.ch_layout.nb_channels);
        else if (av_channel_layout_copy(&in, &frame.ch_layout) < 0)
            return false;
        AVChannelLayout out = {};
        av_channel_layout_default(&out, 1);
        SwrContext* resampler = nullptr;
        swr_alloc_set_opts2(&resampler, &out, AV_SAMPLE_FMT_S16, sampleRate, &in,
                            static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
        av_channel_layout_uninit(&in);
        m_resampler.reset(resampler);
        return m_resampler && swr_init(m_resampler.get()) >= 0;
    }

    Chromaprint m_chromaprint;
    Resampler m_resampler;
    int m_samples = 0;
};

Container openContainer(const SoundFile& file) {
    AVFormatContext* format = avformat_alloc_context();
    if (!format) return nullptr;
    format->pb = file.context();
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "format_whitelist", containers, 0);
    av_dict_set(&options, "codec_whitelist", codecs, 0);
    av_dict_set(&options, "protocol_whitelist", "none", 0); // no file that the file names
    const int opened = avformat_open_input(&format, "", nullptr, &options);
    av_dict_free(&options);
    return Container(opened < 0 ? nullptr : format);
}

/// The decoder of the stream; nothing where no codec of music knows it.
Codec openCodec(const AVStream& stream) {
    const AVCodec* const codec = avcodec_find_decoder(stream.codecpar->codec_id);
    Codec context(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!context || avcodec_parameters_to_context(context.get(), stream.codecpar) < 0) return nullptr;
    context->thread_count = 1;
    context->pkt_timebase = stream.time_base;
    context->codec_whitelist = av_strdup(codecs);
    return avcodec_open2(context.get(), codec, nullptr) < 0 ? nullptr : std::move(context);
}

/// The best sound of the container, with all else left out; -1 for none.
int chooseStream(AVFormatContext& format) {
    if (avformat_find_stream_info(&format, nullptr) < 0) return -1;
    const int chosen = av_find_best_stream(&format, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    for (unsigned i = 0; i < format.nb_streams; ++i)
        if (static_cast<int>(i) != chosen) format.streams[i]->discard = AVDISCARD_ALL;
    return chosen;
}

/// Takes all frames that the codec has ready. False where the sound ends here.
bool takeFrames(AVCodecContext& codec, AVFrame& frame, FingerprintMaker& maker) {
    int received = 0;
    while (!maker.isComplete() && (received = avcodec_receive_frame(&codec, &frame)) >= 0) {
        if (!maker.add(frame)) return false;
        av_frame_unref(&frame);
    }
    return !maker.isComplete() && received != AVERROR_EOF;
}

void decode(AVFormatContext& format, int stream, AVCodecContext& codec, FingerprintMaker& maker) {
    const Packet packet(av_packet_alloc());
    const Frame frame(av_frame_alloc());
    for (int count = 0; count < mostPackets && av_read_frame(&format, packet.get()) >= 0; ++count) {
        // A broken packet is left out, as a player does it.
        const bool isSound = packet->stream_index == stream;
        if (isSound) avcodec_send_packet(&codec, packet.get());
        av_packet_unref(packet.get());
        if (isSound && !takeFrames(codec, *frame, maker)) return;
    }
    avcodec_send_packet(&codec, nullptr);
    takeFrames(codec, *frame, maker);
}

} // namespace

Result<Fingerprint> listenTo(const std::string& path) {
    av_log_set_level(AV_LOG_QUIET);
    av_max_alloc(largestBlock);
    Result<SoundFile> file = SoundFile::open(path);
    if (!file) return file.error();
    const Container format = openContainer(file.value());
    if (!format) return Error{.message = "no sound that is known"};
    const int stream = chooseStream(*format);
    if (stream < 0) return Error{.message = "no sound in it"};
    const Codec codec = openCodec(*format->streams[stream]);
    if (!codec) return Error{.message = "its sound cannot be decoded"};
    FingerprintMaker maker;
    decode(*format, stream, *codec, maker);
    Fingerprint fingerprint = maker.finish();
    if (fingerprint.empty()) return Error{.message = "too short"};
    return fingerprint;
}

} // namespace songsweep
