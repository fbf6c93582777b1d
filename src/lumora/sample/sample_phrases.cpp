#include <lumora/sample/sample_phrases.h>

#include <iterator>

namespace lumora::sample {
namespace {

// Accented letters on purpose: they show the code page conversion at work.
constexpr Phrase kWords[] = {
    {u"el café", u"the coffee", u"le café"},
    {u"la mañana", u"the morning", u"le matin"},
    {u"el niño", u"the child", u"l'enfant"},
    {u"¿Cómo estás?", u"How are you?", u"Comment vas-tu ?"},
    {u"la canción", u"the song", u"la chanson"},
    {u"el árbol", u"the tree", u"l'arbre"},
    {u"la película", u"the film", u"le film"},
    {u"¡Buen provecho!", u"Enjoy your meal!", u"Bon appétit !"},
    {u"el cumpleaños", u"the birthday", u"l'anniversaire"},
    {u"la estación", u"the station", u"la gare"},
    {u"el pequeño pájaro", u"the little bird", u"le petit oiseau"},
};

constexpr Phrase kInstructions[] = {
    {u"Escucha y repite.", u"Listen and repeat.", u"Écoute et répète."},
    {u"Elige la palabra correcta.", u"Choose the right word.", u"Choisis le bon mot."},
    {u"Mira el vídeo y contesta.", u"Watch the video and answer.", u"Regarde la vidéo et réponds."},
    {u"Ordena las frases.", u"Put the sentences in order.", u"Remets les phrases dans l'ordre."},
};

constexpr Phrase kSentences[] = {
    {u"Me llamo Lucía y vivo en Sevilla.", u"My name is Lucía and I live in Seville.",
     u"Je m'appelle Lucía et j'habite à Séville."},
    {u"¿Dónde está la estación de tren?", u"Where is the train station?", u"Où est la gare ?"},
    {u"Mañana vamos a la playa con los niños.",
     u"Tomorrow we are going to the beach with the "
     u"children.",
     u"Demain nous allons à la plage avec les enfants."},
    {u"El café de la esquina abre a las ocho.", u"The café on the corner opens at eight.",
     u"Le café du coin ouvre à huit heures."},
    {u"Quisiera un billete de ida y vuelta.", u"I would like a return ticket.",
     u"Je voudrais un billet aller-retour."},
};

constexpr Phrase kRevision = {u"Repaso: escribe lo que oyes.", u"Review: write what you hear.",
                              u"Révision : écris ce que tu entends."};

}  // namespace

const Phrase& WordAt(uint32_t n) { return kWords[n % std::size(kWords)]; }

const Phrase& InstructionAt(uint32_t n) { return kInstructions[n % std::size(kInstructions)]; }

const Phrase& SentenceAt(uint32_t n) { return kSentences[n % std::size(kSentences)]; }

const Phrase& RevisionInstruction() { return kRevision; }

}  // namespace lumora::sample
