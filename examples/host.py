import vela

print(vela.speak("ru", "21руб"))
print(vela.speak("ru", "21rub", transliterated=True))
print(vela.read("ru", "-5xyz"))  # the status, and the complaints, kept off standard output
