// Sound through the wave device of Windows.

#include "module_son.h"

#include <windows.h>
#include <mmsystem.h>

#include <QWinEventNotifier>

namespace ui::qt {
namespace {

WAVEFORMATEX format(const Onde& onde) {
    constexpr int bitsparoctet = 8;
    WAVEFORMATEX resultat = {};
    resultat.wFormatTag = WAVE_FORMAT_PCM;
    resultat.nChannels = static_cast<WORD>(onde.voies);
    resultat.nSamplesPerSec = static_cast<DWORD>(onde.frequence);
    resultat.wBitsPerSample = static_cast<WORD>(onde.bits);
    resultat.nBlockAlign = static_cast<WORD>(onde.voies * onde.bits / bitsparoctet);
    resultat.nAvgBytesPerSec = resultat.nSamplesPerSec * resultat.nBlockAlign;
    return resultat;
}

/// The samples of a sound, on a device that signals an event when it has played them.
class LectureWindows : public Lecture {
  public:
    LectureWindows(const Onde& onde, const std::function<void()>& finir)
        : echantillons_(onde.echantillons),
          evenement_(CreateEventW(nullptr, FALSE, FALSE, nullptr)),
          guet_(evenement_) {
        const auto voulu = format(onde);
        if (waveOutOpen(&appareil_, WAVE_MAPPER, &voulu, reinterpret_cast<DWORD_PTR>(evenement_), 0,
                        CALLBACK_EVENT) != MMSYSERR_NOERROR) {
            appareil_ = nullptr;
            return;
        }
        QObject::connect(&guet_, &QWinEventNotifier::activated, &guet_, [this, finir] {
            if ((bloc_.dwFlags & WHDR_DONE) != 0)
                finir();
        });
        bloc_.lpData = echantillons_.data();
        bloc_.dwBufferLength = static_cast<DWORD>(echantillons_.size());
        enroute_ = waveOutPrepareHeader(appareil_, &bloc_, sizeof bloc_) == MMSYSERR_NOERROR &&
                   waveOutWrite(appareil_, &bloc_, sizeof bloc_) == MMSYSERR_NOERROR;
    }
    LectureWindows(const LectureWindows&) = delete;
    LectureWindows& operator=(const LectureWindows&) = delete;
    ~LectureWindows() override {
        guet_.setEnabled(false);
        if (appareil_ != nullptr) {
            waveOutReset(appareil_);
            waveOutUnprepareHeader(appareil_, &bloc_, sizeof bloc_);
            waveOutClose(appareil_);
        }
        CloseHandle(evenement_);
    }
    /// Whether the device has taken the sound.
    [[nodiscard]] bool enroute() const { return enroute_; }

  private:
    QByteArray echantillons_;
    HANDLE evenement_;
    QWinEventNotifier guet_;
    HWAVEOUT appareil_ = nullptr;
    WAVEHDR bloc_ = {};
    bool enroute_ = false;
};

}  // namespace

std::unique_ptr<Lecture> ModuleSon::jouer(const Onde& onde, const std::function<void()>& finir) {
    auto lecture = std::make_unique<LectureWindows>(onde, finir);
    if (!lecture->enroute())
        return nullptr;
    return lecture;
}

}  // namespace ui::qt
