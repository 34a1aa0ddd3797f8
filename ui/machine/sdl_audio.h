#pragma once

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <QLibrary>
#include <QString>

namespace vorlund {

/// The audio functions of SDL, by their names there. The library and the thirty others that it brings along
/// are loaded when this is made, with the first sound, so that they do not hold up the title screen.
class SdlAudio {
    struct Found {
        const char* Name;

        template <typename Signature>
        operator Signature*() const {  // NOLINT(*-explicit-*): it is what it stands for
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a library gives its functions so
            return reinterpret_cast<Signature*>(QLibrary::resolve(QStringLiteral("SDL2-2.0"), 0, Name));
        }
    };

public:
    decltype(SDL_BuildAudioCVT)* BuildAudioCVT = Found{"SDL_BuildAudioCVT"};
    decltype(SDL_ClearQueuedAudio)* ClearQueuedAudio = Found{"SDL_ClearQueuedAudio"};
    decltype(SDL_CloseAudioDevice)* CloseAudioDevice = Found{"SDL_CloseAudioDevice"};
    decltype(SDL_ConvertAudio)* ConvertAudio = Found{"SDL_ConvertAudio"};
    decltype(SDL_FreeWAV)* FreeWAV = Found{"SDL_FreeWAV"};
    decltype(SDL_GetAudioDeviceStatus)* GetAudioDeviceStatus = Found{"SDL_GetAudioDeviceStatus"};
    decltype(SDL_GetQueuedAudioSize)* GetQueuedAudioSize = Found{"SDL_GetQueuedAudioSize"};
    decltype(SDL_InitSubSystem)* InitSubSystem = Found{"SDL_InitSubSystem"};
    decltype(SDL_LoadWAV_RW)* LoadWAV_RW = Found{"SDL_LoadWAV_RW"};
    decltype(SDL_LogSetOutputFunction)* LogSetOutputFunction = Found{"SDL_LogSetOutputFunction"};
    decltype(SDL_OpenAudioDevice)* OpenAudioDevice = Found{"SDL_OpenAudioDevice"};
    decltype(SDL_PauseAudioDevice)* PauseAudioDevice = Found{"SDL_PauseAudioDevice"};
    decltype(SDL_QueueAudio)* QueueAudio = Found{"SDL_QueueAudio"};
    decltype(SDL_QuitSubSystem)* QuitSubSystem = Found{"SDL_QuitSubSystem"};
    decltype(SDL_RWFromConstMem)* RWFromConstMem = Found{"SDL_RWFromConstMem"};
    decltype(SDL_SetHint)* SetHint = Found{"SDL_SetHint"};
    decltype(SDL_SetMainReady)* SetMainReady = Found{"SDL_SetMainReady"};
    decltype(SDL_TLSCleanup)* TLSCleanup = Found{"SDL_TLSCleanup"};

    /// False where SDL is not installed; nothing may be called then. A library of its second line has all of
    /// them: this one is the newest.
    bool IsThere() const { return TLSCleanup != nullptr; }
};

}  // namespace vorlund
