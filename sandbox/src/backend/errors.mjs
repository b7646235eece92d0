/** An answer of the backend that is not a success: a status, a code the application knows, and a sentence for the log. */
export class BackendError extends Error {
  constructor(status, code, message) {
    super(message);
    this.status = status;
    this.code = code;
  }
}
