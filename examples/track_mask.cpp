// Masks a face that moves: the frame follows a motion track, and the engine asks for its place over time.

#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectFactory.h>
#include <EditorModel/MotionTracking.h>
#include <effects/Effects.h>
#include <Settings/SettingsMask.h>

#include <iostream>

#include <QFile>

int main(int argc, char ** argv)
{
    if (argc != 2) {
        std::cerr << "usage: track_mask TRACK_FILE\n";
        return 2;
    }
    QString const track = QFile::decodeName(argv[1]);
    // A mask whose track is missing or broken converts all the same, and its frame does not move.
    if (QString error; !MotionTracking::loadTrackFile(track, &error)) {
        std::cerr << error.toStdString() << '\n';
        return 1;
    }
    MotionTracking::registerTrack("face", track);
    EditorCollection::NullItemStorage noItems;
    EditorCollection::CollectionProvider::setItemStorage(&noItems);
    Effect::ContentProvider const provider;

    Effect::Mask mask;
    Effect::FrameConceal frame;
    mask.addFrame(*frame.setTrackingId("face")->setOpacity(0.75));
    Effect::Factory::VideoParams params;
    params.duration = 2 * MTime::unitsPerSecond;
    auto const record = Effect::Factory::videoEffectSettings(mask, params);
    auto const & settings = dynamic_cast<Quoril::Proc::SettingsEffectMask const &>(*record.settings.at(0));

    for (double const position : {0.0, 0.25, 0.5, 1.0}) {
        auto const shown = settings.GetFrameFunctors().at(0)(position);
        std::cout << position << ": ";
        if (shown)
            std::cout << "size " << shown->matrix[0] << " x " << shown->matrix[4] << ", moved by " << shown->matrix[6]
                      << ", " << shown->matrix[7] << '\n';
        else
            std::cout << "no frame\n";
    }
}
