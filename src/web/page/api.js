// Talking to the server. The form's token lives in this tab only, and the clerk's
// actions go out one request at a time, in the order they were made: a key must
// never overtake the typing before it.
'use strict';

const Api = (() => {
  const TOKEN_KEY = 'dispatch.token';

  // A refusal of the server: the HTTP status and its reason.
  class Refused extends Error {
    constructor(status, reason) {
      super(reason);
      this.status = status;
    }
  }

  function token() {
    return sessionStorage.getItem(TOKEN_KEY);
  }

  function setToken(value) {
    if (value) sessionStorage.setItem(TOKEN_KEY, value);
    else sessionStorage.removeItem(TOKEN_KEY);
  }

  async function request(method, path, body) {
    const headers = {};
    if (token()) headers['X-Form-Token'] = token();
    const init = {method, headers};
    if (body !== undefined) {
      headers['Content-Type'] = 'application/json';
      init.body = JSON.stringify(body);
    }
    let response;
    try {
      response = await fetch(path, init);
    } catch (e) {
      throw new Refused(0, 'The server cannot be reached.');
    }
    if (response.ok) return response;
    let reason = response.statusText || 'refused';
    try {
      const answer = await response.json();
      if (answer && answer.error) reason = answer.error;
    } catch (e) {
      // A refusal without a JSON body keeps the status text.
    }
    throw new Refused(response.status, reason);
  }

  async function json(method, path, body) {
    return (await request(method, path, body)).json();
  }

  // The queue: each job is a function that returns the request to make, or null
  // when, by the time its turn comes, there is nothing left to send.
  const jobs = [];
  let running = false;
  let inFlight = false;
  let onState = () => {};
  let onRefused = () => {};

  function enqueue(job) {
    jobs.push(job);
    if (!running) drain();
  }

  async function drain() {
    running = true;
    while (jobs.length > 0) {
      const job = jobs.shift();
      const call = job();
      if (!call) continue;
      inFlight = true;
      let state;
      try {
        state = await json('POST', call.path, call.body);
      } catch (e) {
        // What followed a refused action was meant for a form that did not take it.
        jobs.length = 0;
        await onRefused(e);
        inFlight = false;
        continue;
      }
      // While the answer is drawn the page is busy only with what the clerk did since.
      inFlight = false;
      onState(state);
    }
    running = false;
  }

  return {
    Refused,
    token,
    setToken,
    request,
    json,
    busy: () => inFlight || jobs.length > 0,
    // Whether the clerk has done more that is still to go.
    queued: () => jobs.length > 0,
    // Handlers for the state each call answers and for a refusal.
    listen(stateHandler, refusedHandler) {
      onState = stateHandler;
      onRefused = refusedHandler;
    },
    // An event of the form; words may be a function read when its turn comes.
    event(words) {
      enqueue(() => {
        const w = typeof words === 'function' ? words() : words;
        return w ? {path: '/api/event', body: {words: w}} : null;
      });
    },
    answer(values) {
      enqueue(() => ({path: '/api/answer', body: {values}}));
    },
    clearQueue() {
      jobs.length = 0;
    },
  };
})();
