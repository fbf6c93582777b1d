// Runs in a page before its own scripts and watches what reaches the speakers: the state of
// the page's audio contexts and the loudest sample of every buffer started. A Flash player
// mixes its sounds into such buffers, so a silent or muted sound shows up here as peak 0.
export function audioProbe() {
  const probe = { contexts: [], peak: 0 };
  window.audioProbe = probe;
  const Context = window.AudioContext;
  window.AudioContext = class extends Context {
    constructor(...args) {
      super(...args);
      probe.contexts.push(this);
    }
  };
  const start = AudioBufferSourceNode.prototype.start;
  AudioBufferSourceNode.prototype.start = function (...args) {
    for (let channel = 0; this.buffer && channel < this.buffer.numberOfChannels; ++channel) {
      for (const sample of this.buffer.getChannelData(channel)) {
        probe.peak = Math.max(probe.peak, Math.abs(sample));
      }
    }
    return start.apply(this, args);
  };
}

// The probe's findings in `page`: the states of its audio contexts and the loudest sample.
export function audioHeard(page) {
  return page.evaluate(() => ({
    states: window.audioProbe.contexts.map((c) => c.state),
    peak: window.audioProbe.peak,
  }));
}
