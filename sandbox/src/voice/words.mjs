/** The words of a sentence with what stands between them; joined they are the sentence. */
export function wordsOf(sentence, language) {
  const words = [];
  for (const { segment, isWordLike } of new Intl.Segmenter(language, { granularity: 'word' }).segment(sentence)) {
    if (isWordLike || words.length === 0) words.push(segment);
    else words[words.length - 1] += segment;
  }
  return words;
}
