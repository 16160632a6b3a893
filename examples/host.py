import vela

print(vela.speak("ru", "21руб"))
print(vela.speak("ru", "21rub", transliterated=True))
