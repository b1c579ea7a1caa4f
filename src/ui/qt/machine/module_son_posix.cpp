#include "module_son.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>
#include <QTimer>

namespace ui::qt {
namespace {

constexpr int vidange = 200;  // milliseconds

QAudioFormat format(const Onde& onde) {
    QAudioFormat resultat;
    resultat.setSampleRate(onde.frequence);
    resultat.setChannelCount(onde.voies);
    resultat.setSampleFormat(onde.bits == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    return resultat;
}

class LectureQt : public Lecture {
  public:
    LectureQt(const QAudioDevice& appareil, const Onde& onde, const std::function<void()>& finir)
        : sortie_(appareil, format(onde)) {
        source_.setData(onde.echantillons);
        source_.open(QIODevice::ReadOnly);
        QObject::connect(&sortie_, &QAudioSink::stateChanged, &sortie_,
                         [this, finir](QAudio::State etat) {
                             if (etat == QAudio::IdleState)  // all is handed over, not all is heard
                                 QTimer::singleShot(vidange, &sortie_, finir);
                             if (etat == QAudio::StoppedState)
                                 finir();
                         });
        sortie_.start(&source_);
        if (sortie_.error() != QAudio::NoError)
            finir();
    }
    LectureQt(const LectureQt&) = delete;
    LectureQt& operator=(const LectureQt&) = delete;
    ~LectureQt() override {
        sortie_.disconnect();
        sortie_.stop();
    }

  private:
    QBuffer source_;
    QAudioSink sortie_;
};

}  // namespace

std::unique_ptr<Lecture> ModuleSon::jouer(const Onde& onde, const std::function<void()>& finir) {
    const auto appareil = QMediaDevices::defaultAudioOutput();
    if (appareil.isNull() || !appareil.isFormatSupported(format(onde)))
        return nullptr;
    return std::make_unique<LectureQt>(appareil, onde, finir);
}

}  // namespace ui::qt
